#pragma once

#include "support/failure.h"
#include "support/pixels.h"
#include "support/ref.h"

#include <windows.h>

#include <oaidl.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace support {

/// A host's picture box or printer as Basic has them: late-bound properties that act on its device context.
///
/// It logs every access and can be told to fail or to do something at an access. An access is told as
/// "get Name", "put ForeColor 255" or "call Line 10 20 30 40". The canvas must outlive the box.
class PictureBox final : public IDispatch {
public:
    static Ref<PictureBox> Create(Canvas& canvas, const std::wstring& name = L"PlanBox",
                                  const std::wstring& typeName = L"PictureBox");

    const std::vector<std::string>& Log() const { return log_; }
    void ClearLog() { log_.clear(); }
    /// The accesses that begin with a text, in their order.
    std::vector<std::string> Logged(const std::string& beginning) const;
    std::ptrdiff_t Count(const std::string& access) const {
        return std::count(log_.begin(), log_.end(), access);
    }

    /// Accesses that begin with "get Name" or "put ForeColor" fail from now on.
    void Fail(const std::string& beginning, const Failure& failure) { failures_[beginning] = failure; }
    /// Nothing fails any more.
    void Heal() { failures_.clear(); }
    /// Called at each access, before it takes effect.
    void OnAccess(std::function<void(const std::string& access)> action) { action_ = std::move(action); }

    /// A property as the host itself sees and sets it, without a trace in the log.
    LONG Property(const std::wstring& name) const;
    void SetProperty(const std::wstring& name, LONG value);
    /// What ScaleWidth and ScaleHeight tell; at first the size of the canvas.
    void SetScale(double width, double height);
    /// The box's Line takes four arguments, or six as a picture box's does; at first four.
    void SetLineArguments(UINT count) { lineArguments_ = count; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

private:
    PictureBox(Canvas& canvas, std::wstring name, const std::wstring& typeName);
    virtual ~PictureBox();

    bool Note(const std::string& access, EXCEPINFO* exception);
    void Get(DISPID id, VARIANT& result) const;
    HRESULT Line(const DISPPARAMS& arguments);
    void Apply();

    ULONG references_ = 1;
    Canvas& canvas_;
    std::wstring name_;
    Ref<ITypeInfo> type_;
    double scaleWidth_;
    double scaleHeight_;
    UINT lineArguments_ = 4;
    std::map<std::wstring, LONG> values_;
    std::vector<std::string> log_;
    std::map<std::string, Failure> failures_;
    std::function<void(const std::string&)> action_;
    HGDIOBJ pen_ = nullptr;
    HGDIOBJ brush_ = nullptr;
};

} // namespace support
