#include "support/counts.h"

#include <cstddef>
#include <cstdint>

namespace support {

namespace {

/// Goes through a file as far as its parts are there.
class Walk {
public:
    explicit Walk(std::string& bytes) : bytes_(bytes) {}

    /// False when the file is too short for that.
    bool Skip(std::size_t count) {
        at_ += count;
        return at_ <= bytes_.size();
    }
    bool SkipText() {
        if (at_ + 2 > bytes_.size())
            return false;
        return Skip(2 + Byte(at_) + 256 * Byte(at_ + 1));
    }
    /// Makes a last index small and gives it; -1 at the end of the file.
    int Index() {
        if (at_ + 4 > bytes_.size())
            return -1;
        const bool negative = Byte(at_ + 3) >= 0x80;
        if (!negative) {
            bytes_[at_ + 2] = bytes_[at_ + 3] = '\0';
            bytes_[at_ + 1] = static_cast<char>(Byte(at_ + 1) & 3U);
        }
        const int index = static_cast<int>(Byte(at_) + 256 * Byte(at_ + 1));
        at_ += 4;
        return negative ? -1 : index;
    }
    bool Flag() {
        const bool flag = at_ + 2 <= bytes_.size() && (Byte(at_) | Byte(at_ + 1)) != 0;
        at_ += 2;
        return flag;
    }

private:
    std::size_t Byte(std::size_t at) const { return static_cast<unsigned char>(bytes_[at]); }

    std::string& bytes_;
    std::size_t at_ = 0;
};

} // namespace

std::string WithSmallCounts(std::string_view bytes) {
    std::string result(bytes);
    Walk walk(result);
    if (!walk.Skip(21))
        return result;
    for (int left = walk.Index(); left >= 0; --left) {
        if (!walk.Skip(38) || !walk.SkipText())
            return result;
        const int lastPoint = walk.Index();
        if (!walk.Skip(8 * static_cast<std::size_t>(lastPoint + 1)))
            return result;
        if (walk.Flag() && !(walk.Skip(4) && walk.SkipText() && walk.Skip(8)))
            return result;
    }
    return result;
}

} // namespace support
