#include "qsymbol/files/binary_survey.h"

#include "qsymbol/files/binary_format.h"
#include "qsymbol/files/binary_input.h"

namespace qsymbol {

namespace {

using Result = BinarySurvey::Result;
namespace format = binary_format;

/// Steps over bytes. Tells by its result whether so many are there, where BinaryInput raises an error: a catalogue is
/// surveyed file by file.
class Walk {
public:
    explicit Walk(std::string_view bytes) : begin_(bytes.data()), at_(begin_), end_(begin_ + bytes.size()) {}

    std::size_t Position() const { return static_cast<std::size_t>(at_ - begin_); }
    bool Has(std::size_t count) const { return static_cast<std::size_t>(end_ - at_) >= count; }
    void Skip(std::size_t count) { at_ += count; }
    std::string_view Next(std::size_t count) const { return {at_, count}; }
    std::uint16_t U16() { return BinaryInput::LittleU16(Passed(2)); }
    std::int32_t I32() { return BinaryInput::LittleI32(Passed(4)); }

private:
    const char* Passed(std::size_t count) {
        at_ += count;
        return at_ - count;
    }

    const char* begin_;
    const char* at_;
    const char* end_;
};

Result PassTag(Walk& walk) {
    if (!walk.Has(2))
        return Result::CutOff;
    if (walk.U16() != format::kTag.size())
        return Result::Broken;
    if (!walk.Has(format::kTag.size()))
        return Result::CutOff;
    if (walk.Next(format::kTag.size()) != format::kTag)
        return Result::Broken;
    walk.Skip(format::kTag.size());
    return Result::Whole;
}

Result PassFont(Walk& walk) {
    if (!walk.Has(format::kFontStart + 2))
        return Result::CutOff;
    walk.Skip(format::kFontStart);
    const std::size_t end = walk.U16() + format::kFontEnd;
    if (!walk.Has(end))
        return Result::CutOff;
    walk.Skip(end);
    return Result::Whole;
}

Result PassElement(Walk& walk) {
    if (!walk.Has(format::kFieldsSize + 2))
        return Result::CutOff;
    walk.Skip(format::kFieldsSize);
    const std::size_t text = walk.U16();
    if (!walk.Has(text + 4))
        return Result::CutOff;
    walk.Skip(text);
    const std::int32_t lastPoint = walk.I32();
    if (lastPoint < -1)
        return Result::Broken;
    const std::uint64_t points = format::kPointSize * (static_cast<std::uint64_t>(lastPoint) + 1);
    if (points > SIZE_MAX - 2 || !walk.Has(static_cast<std::size_t>(points) + 2))
        return Result::CutOff;
    walk.Skip(static_cast<std::size_t>(points));
    return walk.U16() != 0 ? PassFont(walk) : Result::Whole;
}

} // namespace

BinarySurvey SurveyBinary(std::string_view bytes) {
    Walk walk(bytes);
    if (const Result tag = PassTag(walk); tag != Result::Whole)
        return {tag};
    if (!walk.Has(format::kSizesSize + 4))
        return {Result::CutOff};
    walk.Skip(format::kSizesSize);
    const std::int32_t lastElement = walk.I32();
    if (lastElement < -1)
        return {Result::Broken};
    const std::size_t begin = walk.Position();
    for (std::int64_t i = 0; i <= lastElement; ++i)
        if (const Result element = PassElement(walk); element != Result::Whole)
            return {element};
    return {Result::Whole, begin, walk.Position()};
}

} // namespace qsymbol
