#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace support {

/// How a call failed: the status code and what the error information tells; empty texts when there is none.
struct Failure {
    HRESULT status = S_OK;
    std::wstring source;
    std::wstring description;

    bool statusOnly = false; ///< all that a proxy of a virtual table brought; its texts are not compared

    bool operator==(const Failure& other) const {
        return status == other.status && (statusOnly || other.statusOnly ||
                                          (source == other.source && description == other.description));
    }
};

std::ostream& operator<<(std::ostream& out, const Failure& failure);

/// The status code in which an automation client finds the error number n.
constexpr HRESULT Numbered(int number) {
    return static_cast<HRESULT>(0x800A0000U + static_cast<unsigned>(number));
}

/// The run-time error of a number with its German text.
Failure RunTimeError(int number, const wchar_t* source = L"QSymbol");

/// The library's own error of a number with its built-in text.
Failure LibraryError(int number, const wchar_t* source);

/// From now on calls go through proxies. Of an error through the vtable they carry the status alone; late bound calls bring all.
void ExpectProxies();

/// The outcome of a call through the vtable; takes the thread's error information away.
Failure Outcome(HRESULT status);

/// Fails as an object of a host does: sets the error information and gives the status back.
HRESULT Throw(const Failure& failure);

/// The error information of the thread, which is empty afterwards.
Failure TakeErrorInfo();

testing::AssertionResult Succeeds(const char* expression, HRESULT status);

} // namespace support

/// A call that must succeed; tells number, source and description when it does not.
#define EXPECT_OK(call) EXPECT_PRED_FORMAT1(support::Succeeds, call)
#define ASSERT_OK(call) ASSERT_PRED_FORMAT1(support::Succeeds, call)
