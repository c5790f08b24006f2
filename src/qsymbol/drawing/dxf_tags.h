#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qsymbol {

using DxfHandle = std::uint32_t;

/// Collects group codes and values of a drawing file in memory.
class DxfTags {
public:
    void Text(int code, std::string_view value);
    void Whole(int code, std::int64_t value);
    /// With one to ten decimals, as many as it needs.
    void Real(int code, double value);
    void Handle(int code, DxfHandle handle);
    /// x and y under code and code + 10, and z = 0 under code + 20.
    void Place(int code, double x, double y);
    void Append(const DxfTags& other) { bytes_ += other.bytes_; }

    const std::string& Bytes() const { return bytes_; }
    bool IsEmpty() const { return bytes_.empty(); }

private:
    std::string bytes_;
};

} // namespace qsymbol
