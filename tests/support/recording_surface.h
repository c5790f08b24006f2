#pragma once

#include "base/error.h"
#include "base/utf8.h"
#include "qsymbol/draw/surface.h"

#include <string>
#include <vector>

namespace support {

using Calls = std::vector<std::string>;

/// A surface that notes every get, put and output as a line of text.
class RecordingSurface : public qsymbol::Surface {
public:
    Calls calls;
    qsymbol::SurfaceKind kind = qsymbol::SurfaceKind::PictureBox;
    std::u16string name = u"Picture1";
    std::int32_t drawMode = 13;
    std::int32_t drawWidth = 1;
    std::int32_t drawStyle = 0;
    std::int32_t foreColor = 0;
    std::int32_t fillStyle = 1;
    /// The call that fails with error 438 instead of being noted, "" for none.
    std::string failing;

    qsymbol::SurfaceKind Kind() override {
        Note("Kind?");
        return kind;
    }
    std::u16string Name() override {
        Note("Name?");
        return name;
    }
    std::int32_t DrawMode() override { return Get("DrawMode?", drawMode); }
    std::int32_t DrawWidth() override { return Get("DrawWidth?", drawWidth); }
    std::int32_t DrawStyle() override { return Get("DrawStyle?", drawStyle); }
    std::int32_t ForeColor() override { return Get("ForeColor?", foreColor); }
    std::int32_t FillStyle() override { return Get("FillStyle?", fillStyle); }

    void PutDrawMode(std::int32_t value) override { Keep("DrawMode", drawMode, value); }
    void PutDrawWidth(std::int32_t value) override { Keep("DrawWidth", drawWidth, value); }
    void PutDrawStyle(std::int32_t value) override { Keep("DrawStyle", drawStyle, value); }
    void PutForeColor(std::int32_t value) override { Keep("ForeColor", foreColor, value); }
    void PutFillColor(std::int32_t value) override { Put("FillColor", value); }
    void PutFillStyle(std::int32_t value) override { Keep("FillStyle", fillStyle, value); }

    void Line(qmath::Point from, qmath::Point to) override { Note("Line" + Text(from) + Text(to)); }
    void Polygon(std::span<const qmath::Point> points) override { Note("Polygon" + Text(points)); }
    void Polyline(std::span<const qmath::Point> points) override { Note("Polyline" + Text(points)); }
    void Ellipse(const qmath::Rect& box) override { Note("Ellipse" + Text(box)); }
    void Arc(const qmath::Rect& box, qmath::Point start, qmath::Point end) override {
        Note("Arc" + Text(box) + Text(start) + Text(end));
    }
    void Invert(qmath::Point leftTop, std::int32_t width, std::int32_t height) override {
        Note("Invert" + Text(leftTop) + " " + std::to_string(width) + "x" + std::to_string(height));
    }
    void SetTextAlign(std::int32_t flags) override { Put("TextAlign", flags); }
    void SetBkMode(std::int32_t mode) override { Put("BkMode", mode); }
    void WriteText(qmath::Point anchor, std::u16string_view text) override {
        Note("Text" + Text(anchor) + " " + base::ToUtf8(text));
    }
    void WriteTextAsPath(qmath::Point anchor, std::u16string_view text) override {
        Note("TextPath" + Text(anchor) + " " + base::ToUtf8(text));
    }
    void SelectFont(const base::FontRequest& request) override {
        std::string flags;
        flags += request.bold ? 'b' : '-';
        flags += request.italic ? 'i' : '-';
        flags += request.underline ? 'u' : '-';
        flags += request.strikethrough ? 's' : '-';
        Note("Font " + std::to_string(request.height) + " " + std::to_string(request.escapement) + " " +
             flags + " " + base::ToUtf8(request.name));
    }
    void ReleaseFont() noexcept override { calls.emplace_back("ReleaseFont"); }

    /// The calls so far; forgets them.
    Calls Take() {
        Calls taken;
        taken.swap(calls);
        return taken;
    }

private:
    void Note(const std::string& call) {
        if (!failing.empty() && call.starts_with(failing))
            base::Raise(base::RunTimeError::NoSuchMember);
        calls.push_back(call);
    }
    void Put(const std::string& property, std::int32_t value) {
        Note(property + "=" + std::to_string(value));
    }
    void Keep(const std::string& property, std::int32_t& place, std::int32_t value) {
        Put(property, value);
        place = value;
    }
    std::int32_t Get(const std::string& property, std::int32_t value) {
        Note(property);
        return value;
    }
    static std::string Text(qmath::Point point) {
        return " (" + std::to_string(point.x) + "," + std::to_string(point.y) + ")";
    }
    static std::string Text(const qmath::Rect& box) {
        return Text(qmath::Point{box.left, box.top}) + Text(qmath::Point{box.right, box.bottom});
    }
    static std::string Text(std::span<const qmath::Point> points) {
        std::string text;
        for (const qmath::Point point : points)
            text += Text(point);
        return text;
    }
};

} // namespace support
