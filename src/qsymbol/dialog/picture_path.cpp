#include "qsymbol/dialog/picture_path.h"

namespace qsymbol {

std::u16string PicturePath(std::u16string_view folder, std::u16string_view name) {
    std::u16string path(folder);
    path += u'\\';
    path += name;
    path += u".JPG";
    return path;
}

} // namespace qsymbol
