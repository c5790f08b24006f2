#include "support/automation_test.h"
#include "support/servers.h"
#include "support/shapes.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

using support::Answer;
using support::Bstr;
using support::Dispatch;
using support::Outcome;
using support::Ref;
using support::RunTimeError;
using support::Value;

std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A closed triangle and a text, the reference point in a corner.
Ref<_CSymbol> Flag() {
    return support::NewSymbol(100, 100, 300, 300,
                              {{.type = symPoly,
                                .points = {{100, 100}, {200, 100}, {100, 150}},
                                .closed = true,
                                .mainColor = RGB(255, 0, 0)},
                               {.type = symText,
                                .points = {{100, 200}},
                                .mainColor = RGB(1, 2, 3),
                                .text = L"K\u00FCche",
                                .font = support::FontSpec{}}});
}

/// What Flag appends at (1000, 2000), mirrored at 5000.
std::string FlagEntities() {
    const auto vertex = [](const char* x, const char* y) {
        return std::string("  0\r\nVERTEX\r\n  8\r\nSYMBOLE\r\n 10\r\n") + x + "\r\n 20\r\n" + y +
               "\r\n 30\r\n0.0\r\n";
    };
    return "  0\r\nPOLYLINE\r\n  8\r\nSYMBOLE\r\n62\r\n1\r\n66\r\n     1\r\n 10\r\n0.0\r\n 20\r\n0.0\r\n"
           " 30\r\n0.0\r\n" +
           vertex("0.01000000000000", "0.03000000000000") + vertex("0.01100000000000", "0.03000000000000") +
           vertex("0.01000000000000", "0.02950000000000") + vertex("0.01000000000000", "0.03000000000000") +
           "  0\r\nSEQEND\r\n  8\r\nSYMBOLE\r\n"
           "0\r\nTEXT\r\n8\r\nSYMBOLE\r\n10\r\n0.01000000000000\r\n20\r\n0.02900000000000\r\n30\r\n0.0\r\n"
           "40\r\n0.20000000000000\r\n1\r\nK\xFC"
           "che\r\n62\r\n7\r\n50\r\n0.00000000000000\r\n";
}

class DxfExport : public support::AutomationTest {
protected:
    void SetUp() override {
        folder = std::filesystem::temp_directory_path() / (L"dxf_" + std::to_wstring(GetCurrentProcessId()));
        std::filesystem::remove_all(folder);
        std::filesystem::create_directory(folder);
        path = folder / L"plan.dxf";
        SetScreenFactor(0);
    }
    void TearDown() override {
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
        SetScreenFactor(0);
    }

    /// The factor that any symbol was drawn with last, here without a surface.
    static void SetScreenFactor(double factor) {
        LONG ownColours = -1;
        EXPECT_OK(support::NewSymbol()->Draw(0, 0, 0, nullptr, nullptr, 1, factor, &ownColours));
    }
    void PutHead() { std::ofstream(path, std::ios::binary) << head; }

    HRESULT Append(_CSymbol* symbol) { return AppendTo(symbol, path); }
    static HRESULT AppendTo(_CSymbol* symbol, const std::filesystem::path& file) {
        EXPECT_OK(symbol->put_Etagenbreite(5000));
        return symbol->DxfExportSym(1000, 2000, 0, Bstr(file.wstring()));
    }
    /// True while nobody else has the file open.
    bool OpensAlone() const {
        const HANDLE handle =
            CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        if (handle == INVALID_HANDLE_VALUE)
            EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
        else
            CloseHandle(handle);
        return handle != INVALID_HANDLE_VALUE;
    }

    const std::string head = "  0\r\nSECTION\r\n";
    std::filesystem::path folder;
    std::filesystem::path path;
};

TEST_F(DxfExport, LateBound) {
    const Dispatch symbol(Flag());
    EXPECT_OK(symbol.Put(L"Etagenbreite", 5000).status);
    Value x = 1000;
    EXPECT_OK(symbol.Call(L"DxfExportSym", {Value::Variable(x), 2000, 0, path.wstring()}).status);
    EXPECT_EQ(BytesOf(path), FlagEntities());
    EXPECT_OK(
        symbol
            .Call(L"DxfExportSym", {},
                  {{L"stFilename", path.wstring()}, {L"dAngle", 0.0}, {L"lLogY", 2000}, {L"lLogX", 1000}})
            .status);
    EXPECT_EQ(BytesOf(path), FlagEntities() + FlagEntities());
}

TEST_F(DxfExport, ASymbolWithoutElementsKeepsTheFileOpenAndLocksNobodyOut) {
    PutHead();
    Ref<_CSymbol> empty = support::NewSymbol();
    EXPECT_OK(Append(empty.Get()));
    EXPECT_EQ(BytesOf(path), head);
    EXPECT_FALSE(OpensAlone());

    EXPECT_OK(Append(Flag().Get()));
    EXPECT_EQ(BytesOf(path), head + FlagEntities());
    {
        std::ofstream host(path, std::ios::binary | std::ios::app);
        host << "of the host";
        EXPECT_TRUE(host.flush());
    }
    EXPECT_OK(Append(Flag().Get()));
    EXPECT_EQ(BytesOf(path), head + FlagEntities() + "of the host" + FlagEntities());

    empty = {};
    EXPECT_TRUE(OpensAlone());
}

TEST_F(DxfExport, ItsNextExportClosesTheFileLeftOpen) {
    PutHead();
    const Ref<_CSymbol> symbol = support::NewSymbol();
    EXPECT_OK(Append(symbol.Get()));
    EXPECT_FALSE(OpensAlone());
    EXPECT_EQ(Outcome(AppendTo(symbol.Get(), folder / L"fehlt" / L"plan.dxf")), RunTimeError(76));
    EXPECT_TRUE(OpensAlone());
    EXPECT_OK(Append(symbol.Get()));
    EXPECT_OK(symbol->CreateNew(0, 0, 1, 1, support::NewElements({{.type = symUndefined}}).Get()));
    EXPECT_OK(Append(symbol.Get()));
    EXPECT_TRUE(OpensAlone());
    EXPECT_EQ(BytesOf(path), head);
}

TEST_F(DxfExport, FilesThatCannotBeWritten) {
    EXPECT_EQ(Outcome(AppendTo(Flag().Get(), folder)), RunTimeError(75));
    PutHead();
    ASSERT_NE(SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY), FALSE);
    EXPECT_EQ(Outcome(Append(Flag().Get())), RunTimeError(70));
    EXPECT_EQ(Outcome(Append(support::NewSymbol().Get())), RunTimeError(70));
    EXPECT_EQ(BytesOf(path), head);
}

TEST_F(DxfExport, ADevice) {
    EXPECT_EQ(Outcome(AppendTo(Flag().Get(), L"\\\\.\\NUL")), RunTimeError(75));
}

TEST_F(DxfExport, AFileThatTheHostKeepsToItself) {
    PutHead();
    const HANDLE alone = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(alone, INVALID_HANDLE_VALUE);
    EXPECT_EQ(Outcome(Append(Flag().Get())), RunTimeError(70));
    CloseHandle(alone);
    EXPECT_EQ(BytesOf(path), head);
}

TEST_F(DxfExport, TheReservedMethodDoesNothing) {
    PutHead();
    LONG colour = 255;
    EXPECT_OK(Flag()->DxfExport(1, 2, 3, &colour));
    EXPECT_EQ(colour, 255);
    const Dispatch symbol(Flag());
    EXPECT_OK(symbol.Call(L"DxfExport", {1, 2, 0.5}).status);
    EXPECT_OK(symbol.Call(L"DxfExport", {1, 2, 0.5, 7}).status);
    EXPECT_EQ(BytesOf(path), head);
}

} // namespace
