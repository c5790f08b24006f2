#pragma once

#include "support/canvas.h"
#include "support/value.h"

#include <windows.h>

#include <oaidl.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace support {

/// An error as a host's own code raises it.
struct HostFailure {
    int number = 0; ///< of an error raised by number; 0 when `status` counts
    HRESULT status = S_OK;
    std::wstring source;
    std::wstring description;
};

/// A host's picture box or printer: a late-bound object whose pen and fill properties really act on its
/// device context, as those of a classic Basic control do. It writes down how it is used.
///
/// It lives on the test's stack; the library must have let it go when it goes.
class PictureBox final : public IDispatch {
public:
    /// `typeName` is what the automation type of the control is called: "PictureBox", "Printer" …
    explicit PictureBox(Canvas& canvas, const std::wstring& name = L"Picture1",
                        const std::wstring& typeName = L"PictureBox");
    PictureBox(const PictureBox&) = delete;
    PictureBox& operator=(const PictureBox&) = delete;
    virtual ~PictureBox();

    /// What happened, in order: "get hDC", "put DrawWidth 3".
    std::vector<std::string> log;
    /// Called before every use of a member, with the log's line for it.
    std::function<void(const std::string&)> onUse;

    /// Lets every use of a member fail; "put DrawWidth" or "get hDC".
    void FailOn(const std::string& use, const HostFailure& failure) { failures_[use] = failure; }
    /// Takes a member away.
    void Remove(const std::wstring& member);
    void Set(const std::wstring& member, const Value& value);
    LONG Number(const std::wstring& member) const;
    /// The lines of the log that begin with the text.
    std::vector<std::string> LogOf(const std::string& start) const;
    /// References that others hold.
    ULONG Holders() const { return references_; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override { return --references_; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* argumentError) override;

private:
    struct Member {
        std::wstring name;
        Value value;
        bool present = true;
    };

    Member* Find(const std::wstring& name);
    HRESULT Use(const std::string& use, EXCEPINFO* exception);
    /// Selects pen, brush, raster operation and text colour as the properties say.
    void Apply();

    Canvas& canvas_;
    std::vector<Member> members_; ///< the dispid is the index + 1
    std::map<std::string, HostFailure> failures_;
    Ref<ITypeInfo> type_;
    ULONG references_ = 0;
    HPEN pen_ = nullptr;
    HBRUSH brush_ = nullptr;
    HGDIOBJ firstPen_ = nullptr;
    HGDIOBJ firstBrush_ = nullptr;
};

} // namespace support
