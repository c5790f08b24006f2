#pragma once

#include "platform/win32/memory_bitmap.h"

#include <string>

/// What a picture is written as.
enum class PictureFormat { Png, Jpeg, Bmp, Emf };

/// The format that a file's extension names, in any case of letters. Error 5 for any other one.
PictureFormat PictureFormatOf(const std::u16string& path);

/// Writes a file's content beside and renames it. Errors of base::WriteBeside.
void WritePictureContent(const std::string& content, const std::u16string& path);

/// Writes the bitmap in the format of the extension; any error leaves the old file. Errors of PictureFormatOf, of
/// MemoryBitmap and of base::WriteBeside.
void WritePictureFile(const platform::MemoryBitmap& bitmap, const std::u16string& path);
