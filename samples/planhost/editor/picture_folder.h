#pragma once

#include <filesystem>
#include <string>

/// Where the library's dialog puts pictures of all symbols: the folder of the plan, or the working folder for a plan
/// without a file. The dialog takes name and folder apart at the "+", so that a folder with a "+" goes by its short name,
/// and where it has none, the user's folder for temporary files stands in.
std::wstring PictureFolder(const std::filesystem::path& plan);

/// What the library's dialog is asked: the entry to select first and the folder for pictures. A name with a "+" cannot be
/// passed and selects nothing.
std::wstring DialogRequest(const std::wstring& name, const std::wstring& pictureFolder);
