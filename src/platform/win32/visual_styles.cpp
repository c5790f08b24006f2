#include "platform/win32/visual_styles.h"

namespace platform {

namespace {

/// The resource id at which the loader, too, looks for a library's manifest.
constexpr WORD kManifest = 2;

HANDLE CreateContext(HINSTANCE module) {
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = module;
    description.lpResourceName = MAKEINTRESOURCEW(kManifest);
    return CreateActCtxW(&description);
}

} // namespace

VisualStyles::VisualStyles(HINSTANCE module) : context_(CreateContext(module)) {
    // Without a context windows simply look as the host's own.
    active_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_) != FALSE;
}

VisualStyles::~VisualStyles() {
    if (active_)
        DeactivateActCtx(0, cookie_);
    if (context_ != INVALID_HANDLE_VALUE)
        ReleaseActCtx(context_);
}

} // namespace platform
