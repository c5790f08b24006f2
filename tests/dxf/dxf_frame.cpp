#include "dxf/dxf_frame.h"

#include <memory>
#include <string_view>

namespace support {

namespace {

constexpr std::string_view kHead = "0\nSECTION\n2\nHEADER\n"
                                   "9\n$ACADVER\n1\nAC1009\n"
                                   "9\n$DWGCODEPAGE\n3\nANSI_1252\n"
                                   "0\nENDSEC\n"
                                   "0\nSECTION\n2\nTABLES\n"
                                   "0\nTABLE\n2\nLTYPE\n70\n1\n"
                                   "0\nLTYPE\n2\nCONTINUOUS\n70\n0\n3\nSolid line\n72\n65\n73\n0\n40\n0.0\n"
                                   "0\nENDTAB\n"
                                   "0\nTABLE\n2\nLAYER\n70\n2\n"
                                   "0\nLAYER\n2\n0\n70\n0\n62\n7\n6\nCONTINUOUS\n"
                                   "0\nLAYER\n2\nSYMBOLE\n70\n0\n62\n7\n6\nCONTINUOUS\n"
                                   "0\nENDTAB\n"
                                   "0\nTABLE\n2\nSTYLE\n70\n1\n"
                                   "0\nSTYLE\n2\nSTANDARD\n70\n0\n40\n0.0\n41\n1.0\n50\n0.0\n71\n0\n42\n0.2\n"
                                   "3\ntxt\n4\n\n"
                                   "0\nENDTAB\n"
                                   "0\nENDSEC\n"
                                   "0\nSECTION\n2\nENTITIES\n";

void Put(base::FileSystem& files, const std::u16string& path, base::OpenMode mode, std::string_view bytes) {
    const std::unique_ptr<base::File> file = files.Open(path, mode);
    file->Write(bytes.data(), bytes.size());
    file->Close();
}

} // namespace

void BeginDxf(base::FileSystem& files, const std::u16string& path) {
    Put(files, path, base::OpenMode::Replace, kHead);
}

void EndDxf(base::FileSystem& files, const std::u16string& path) {
    Put(files, path, base::OpenMode::Append, "0\nENDSEC\n0\nEOF\n");
}

} // namespace support
