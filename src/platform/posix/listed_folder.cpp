#include "platform/posix/listed_folder.h"

#include "base/utf8.h"

#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <utility>

namespace platform {

DIR* ListedFolder::Open(const std::string& name, std::u16string prefix) {
    if (DIR* const folder = opendir(name.c_str())) {
        folder_.reset(folder);
        prefix_ = std::move(prefix);
        holdsFilesOnly_ = true;
        return folder;
    }
    return nullptr;
}

int ListedFolder::OpenToRead(const std::u16string& path) const {
    const std::size_t size = prefix_.size();
    // Compared as bytes: starts_with goes through UTF-16 character by character, and paths are long.
    if (!holdsFilesOnly_ || path.size() < size || std::memcmp(path.data(), prefix_.data(), 2 * size) != 0)
        return -1;
    const std::u16string_view name = std::u16string_view(path).substr(size);
    if (name.find_first_of(std::u16string_view(u"/\0", 2)) != std::u16string_view::npos)
        return -1;
    return openat(dirfd(folder_.get()), base::ToUtf8(name).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

} // namespace platform
