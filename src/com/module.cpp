#include "com/module.h"

#include "com/error_info.h"
#include "com/exclusive_lock.h"

#include <algorithm>

namespace com {

Module& TheModule() {
    static Module module;
    return module;
}

namespace {

thread_local long g_objects = 0; ///< that belong to this thread

} // namespace

void Module::ObjectMade() {
    Lock();
    ++g_objects;
}

void Module::ObjectGone() {
    // A host that breaks the rules lets an object of another thread go: then there is one less than none.
    g_objects = std::max(g_objects - 1, 0L);
    if (g_objects == 0 && identity_.threadIsIdle != nullptr)
        identity_.threadIsIdle();
    Unlock();
}

bool Module::CanUnload() const {
    return locks_ == 0 && (identity_.mayUnload == nullptr || identity_.mayUnload());
}

void Module::Start(HINSTANCE instance, const Identity& identity) {
    instance_ = instance;
    identity_ = identity;
}

void Module::Stop() {
    typeLibrary_.Reset();
}

ITypeLib& Module::TypeLibrary() {
    const ExclusiveLock lock(types_);
    if (!typeLibrary_)
        Check(LoadTypeLibEx(Path().c_str(), REGKIND_NONE, typeLibrary_.Put()));
    return *typeLibrary_.Get();
}

void ThrowMissing(const Sibling& sibling, HRESULT status) {
    throw base::Error::FromStatus(static_cast<std::uint32_t>(status), {},
                                  std::u16string(sibling.file) +
                                      u" ist nicht registriert und liegt nicht neben " +
                                      std::u16string(TheModule().Name()) + u".dll");
}

} // namespace com
