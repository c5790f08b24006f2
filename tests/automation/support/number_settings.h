#pragma once

#include <string>

namespace support {

/// The user's regional number settings for as long as this object lives.
class NumberSettings {
public:
    NumberSettings(const std::wstring& decimal, const std::wstring& thousands);
    NumberSettings(const NumberSettings&) = delete;
    NumberSettings& operator=(const NumberSettings&) = delete;
    ~NumberSettings();

    static NumberSettings English() { return {L".", L","}; }
    static NumberSettings German() { return {L",", L"."}; }

private:
    std::wstring decimal_;
    std::wstring thousands_;
};

} // namespace support
