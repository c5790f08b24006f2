#include "automation/qplan/picture_file.h"

#include "base/error.h"
#include "base/letter_case.h"
#include "base/whole_file.h"
#include "platform/win32/win32_file_system.h"

namespace {

using platform::MemoryBitmap;

/// What GDI+ and most programs take for good enough to look at.
constexpr LONG kJpegQuality = 90;

struct NamedFormat {
    std::u16string_view extension;
    PictureFormat format;
};

constexpr NamedFormat kFormats[] = {{u"png", PictureFormat::Png},
                                    {u"jpg", PictureFormat::Jpeg},
                                    {u"jpeg", PictureFormat::Jpeg},
                                    {u"bmp", PictureFormat::Bmp},
                                    {u"emf", PictureFormat::Emf}};

std::string Compose(const MemoryBitmap& bitmap, PictureFormat format) {
    switch (format) {
    case PictureFormat::Jpeg: return bitmap.ToJpeg(kJpegQuality);
    case PictureFormat::Bmp: return bitmap.ToBmp();
    case PictureFormat::Emf: return bitmap.ToEmf();
    default: return bitmap.ToPng();
    }
}

} // namespace

PictureFormat PictureFormatOf(const std::u16string& path) {
    const std::u16string_view name = std::u16string_view(path).substr(path.find_last_of(u"/\\:") + 1);
    const std::size_t stop = name.rfind(u'.');
    if (stop != std::u16string_view::npos) {
        const std::u16string extension = base::LowerCase(name.substr(stop + 1));
        for (const NamedFormat& known : kFormats)
            if (known.extension == extension)
                return known.format;
    }
    base::Raise(base::RunTimeError::InvalidCall);
}

void WritePictureContent(const std::string& content, const std::u16string& path) {
    platform::Win32FileSystem files;
    base::WriteBeside(files, path, content);
}

void WritePictureFile(const MemoryBitmap& bitmap, const std::u16string& path) {
    WritePictureContent(Compose(bitmap, PictureFormatOf(path)), path);
}
