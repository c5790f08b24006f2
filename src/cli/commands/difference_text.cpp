#include "cli/commands/difference_text.h"

#include "cli/shown.h"
#include "qsymbol/check/millimetres.h"

#include <array>

namespace cli {

namespace {

using qsymbol::CatalogueDifference;
using qsymbol::Change;
using qsymbol::ElementDifference;
using qsymbol::FieldValue;

const char* Word(qsymbol::ElementType type) {
    constexpr std::array kWords = {"undefined", "poly", "circle", "arc", "text"};
    const auto index = static_cast<std::size_t>(type);
    return kWords[index < kWords.size() ? index : 0];
}

using ValueKind = FieldValue::Kind;

Json JsonOf(const FieldValue& value) {
    switch (value.kind) {
    case ValueKind::Flag: return value.flag;
    case ValueKind::Number: return value.number;
    case ValueKind::Decimal: return value.decimal;
    case ValueKind::Text: return base::ToUtf8(value.text);
    case ValueKind::Point: return {value.point.x, value.point.y};
    case ValueKind::None: break;
    }
    return nullptr;
}

/// A length in millimetres, a colour as its number, a point as both coordinates in millimetres.
std::string TextOf(const FieldValue& value, std::string_view field) {
    if (value.kind == ValueKind::Number) {
        const bool isPlain = field.ends_with("Color") || field == "textAlign" || field == "textBkMode";
        return isPlain ? std::to_string(value.number) : qsymbol::Millimetres(value.number);
    }
    if (value.kind == ValueKind::Point) {
        std::string text = "(";
        text.append(qsymbol::Millimetres(value.point.x))
            .append(", ")
            .append(qsymbol::Millimetres(value.point.y));
        return text += ')';
    }
    return JsonOf(value).dump();
}

/// " width: 885 -> 900"
std::string TextOf(const Change& change) {
    std::string text = change.point == 0 ? std::string(change.field) : std::string("point ");
    if (change.point != 0)
        text += std::to_string(change.point);
    if (change.from.kind == ValueKind::None)
        return text.append(" added: ").append(TextOf(change.to, change.field));
    if (change.to.kind == ValueKind::None)
        return text.append(" removed: ").append(TextOf(change.from, change.field));
    text.append(": ").append(TextOf(change.from, change.field));
    return text.append(" -> ").append(TextOf(change.to, change.field));
}

std::string ElementName(std::size_t number, qsymbol::ElementType type) {
    std::string text = "element ";
    text.append(std::to_string(number)).append(" (").append(Word(type));
    return text += ')';
}

std::string TextOf(const ElementDifference& element) {
    std::string text;
    if (element.after == 0)
        return text.append("  - ").append(ElementName(element.before, element.type)).append("\n");
    if (element.before == 0)
        return text.append("  + ").append(ElementName(element.after, element.type)).append("\n");
    for (const Change& change : element.changes)
        text.append("  ")
            .append(ElementName(element.after, element.type))
            .append(" ")
            .append(TextOf(change))
            .append("\n");
    return text;
}

Json WithChange(Json item, const Change& change) {
    item["field"] = change.field;
    if (change.point != 0)
        item["point"] = change.point;
    item["from"] = JsonOf(change.from);
    item["to"] = JsonOf(change.to);
    return item;
}

} // namespace

std::string AsText(const CatalogueDifference& difference) {
    const std::string before = Shown(difference.before);
    const std::string after = Shown(difference.after);
    std::string text;
    if (after.empty())
        return text.append("- ").append(before).append("\n");
    if (before.empty())
        return text.append("+ ").append(after).append("\n");
    text = before;
    if (before != after)
        text.append(" -> ").append(after);
    text += '\n';
    for (const Change& change : difference.changes.header)
        text.append("  ").append(TextOf(change)).append("\n");
    for (const ElementDifference& element : difference.changes.elements)
        text += TextOf(element);
    return text;
}

Json AsJson(const CatalogueDifference& difference) {
    Json items = Json::array();
    const std::string before = base::ToUtf8(difference.before);
    const std::string after = base::ToUtf8(difference.after);
    if (after.empty())
        items.push_back({{"symbol", before}, {"change", "symbol-removed"}});
    else if (before.empty())
        items.push_back({{"symbol", after}, {"change", "symbol-added"}});
    else if (before != after)
        items.push_back({{"symbol", after}, {"change", "symbol-renamed"}, {"from", before}, {"to", after}});
    for (const Change& change : difference.changes.header)
        items.push_back(WithChange({{"symbol", after}, {"change", "header"}}, change));
    for (const ElementDifference& element : difference.changes.elements) {
        const bool isGone = element.after == 0;
        Json item = {{"symbol", after},
                     {"change", isGone                ? "element-removed"
                                : element.before == 0 ? "element-added"
                                                      : "element-changed"},
                     {"element", isGone ? element.before : element.after},
                     {"type", Word(element.type)}};
        if (element.changes.empty())
            items.push_back(std::move(item));
        else
            item["oldElement"] = element.before;
        for (const Change& change : element.changes)
            items.push_back(WithChange(item, change));
    }
    return items;
}

} // namespace cli
