#include "support/automation_test.h"
#include "support/message_boxes.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

#include <cstring>

namespace {

using support::ElementsOf;
using support::ElementSpec;
using support::Failure;
using support::FontSpec;
using support::NewSymbolAt;
using support::Outcome;
using support::Ref;
using support::RunTimeError;

class BinaryFile : public support::AutomationTest {
protected:
    support::TempFolder folder;
    std::wstring path = folder / L"Tür.syb";

    Ref<_CSymbol> Write(LONG refX, LONG refY, LONG width, LONG height,
                        const std::vector<ElementSpec>& specs) const {
        Ref<_CSymbol> symbol = support::NewSymbol(refX, refY, width, height, specs);
        EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
        EXPECT_OK(symbol->Write2File());
        return symbol;
    }
    Ref<_CSymbol> Read() const {
        Ref<_CSymbol> symbol = NewSymbolAt(path);
        EXPECT_OK(symbol->ReadFromFile());
        return symbol;
    }
    Failure Read(const std::string& bytes) const {
        support::WriteBytes(path, bytes);
        return Outcome(NewSymbolAt(path)->ReadFromFile());
    }
};

template <class T>
std::string Bytes(T value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

std::string Text(const std::string& text) {
    return Bytes(static_cast<std::uint16_t>(text.size())) + text;
}

const std::string kTrue = "\xFF\xFF";
const std::string kFalse = std::string("\0\0", 2);

TEST_F(BinaryFile, HoldsEveryFieldInItsPlace) {
    Write(150, -105, 300, 200,
          {{.type = symText,
            .points = {{7, 8}, {-1, -2}},
            .lineWidth = 3,
            .closed = true,
            .fillColor = 9,
            .mainColor = 0x010203,
            .radius = 5,
            .text = L"Tür",
            .font = FontSpec{.bold = true, .underline = true},
            .textAngle = 0.1,
            .textAlign = 6,
            .textBkMode = 2}});
    std::string expected = Text("SYM") + Bytes<LONG>(300) + Bytes<LONG>(200) + Bytes<LONG>(150) +
                           Bytes<LONG>(-105) + Bytes<LONG>(0);
    expected += Bytes<LONG>(4) + kTrue + Bytes<LONG>(3) + Bytes<LONG>(6) + Bytes<LONG>(2) + Bytes(0.1) +
                Bytes<LONG>(5) + Bytes<LONG>(0x010203) + Bytes<LONG>(9) + Text("T\xFCr");
    expected += Bytes<LONG>(1) + Bytes<LONG>(7) + Bytes<LONG>(8) + Bytes<LONG>(-1) + Bytes<LONG>(-2);
    expected += kTrue + kTrue + kFalse + Text("Arial") + Bytes<LONG>(6) + kFalse + kTrue;
    EXPECT_EQ(support::ReadBytes(path), expected);
}

TEST_F(BinaryFile, GivesBackWhatWasWritten) {
    const std::vector<ElementSpec> specs = {
        {.type = symPoly,
         .points = {{1, 2}, {3, 4}},
         .lineWidth = 7,
         .closed = true,
         .fillColor = 255,
         .mainColor = 256},
        {.type = symCircle, .points = {{5, 6}}, .radius = 11},
        {.type = symArc, .points = {{5, 6}, {7, 8}, {9, 10}}, .radius = 12},
        {.type = symText,
         .points = {{1, 1}},
         .text = L"Öl; \"x\"",
         .font = FontSpec{.size = 18, .italic = true, .strikethrough = true},
         .textAngle = 1.0 / 3},
    };
    Write(1, 2, 3, 4, specs);
    const Ref<_CSymbol> symbol = Read();
    EXPECT_EQ(ElementsOf(symbol.Get()), specs);
    const support::Dispatch late(symbol);
    EXPECT_EQ(late.Get(L"RefX").value.Long(), 1);
    EXPECT_EQ(late.Get(L"RefY").value.Long(), 2);
    EXPECT_EQ(late.Get(L"Width").value.Long(), 3);
    EXPECT_EQ(late.Get(L"Height").value.Long(), 4);
}

TEST_F(BinaryFile, UndefinedElementsAreKept) {
    Write(0, 0, 1, 1, {{.type = symUndefined}, {.type = symCircle, .points = {{1, 2}}}});
    const auto elements = ElementsOf(Read().Get());
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0].type, symUndefined);
    EXPECT_TRUE(elements[0].points.empty());
    EXPECT_EQ(elements[1].type, symCircle);
}

TEST_F(BinaryFile, ASymbolWithoutElementsDoesNotReadBack) {
    const Ref<_CSymbol> symbol = NewSymbolAt(path);
    EXPECT_OK(symbol->Write2File());
    EXPECT_EQ(support::ReadBytes(path), Text("SYM") + std::string(16, '\0') + Bytes<LONG>(-1));
    EXPECT_EQ(Outcome(symbol->ReadFromFile()), RunTimeError(9));
}

TEST_F(BinaryFile, ALongerOldFileKeepsItsTail) {
    Write(0, 0, 1, 1, {{.type = symCircle, .points = {{1, 2}}}, {.type = symCircle, .points = {{3, 4}}}});
    const std::string old = support::ReadBytes(path);
    support::MessageBoxes boxes{IDYES};
    Write(0, 0, 9, 9, {{.type = symCircle, .points = {{5, 6}}}});
    const std::string now = support::ReadBytes(path);
    EXPECT_EQ(now.size(), old.size());
    EXPECT_EQ(now.substr(now.size() - 20), old.substr(old.size() - 20));
    const auto elements = ElementsOf(Read().Get());
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0].points, (std::vector<POINT>{{5, 6}}));
}

TEST_F(BinaryFile, NeedsItsTag) {
    const std::string rest =
        Bytes<LONG>(1) + Bytes<LONG>(1) + Bytes<LONG>(0) + Bytes<LONG>(0) + Bytes<LONG>(0);
    const Failure refused = support::LibraryError(3501, L"CSymbol.ReadFromBinFile");
    EXPECT_EQ(Read(Text("sym") + rest), refused);
    EXPECT_EQ(Read(Text("SYMB") + rest), refused);
    EXPECT_EQ(Read(Text("SY") + rest), refused);
    EXPECT_EQ(Read(Text("") + rest), refused);
}

TEST_F(BinaryFile, CutShortAnywhereIsTheEndOfTheFile) {
    Write(1, 2, 3, 4, {{.type = symText, .points = {{7, 8}}, .text = L"abc", .font = FontSpec{}}});
    const std::string whole = support::ReadBytes(path);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(Read(whole.substr(0, length)), RunTimeError(62)) << length;
    EXPECT_EQ(Read(whole), Failure{});
    EXPECT_EQ(Read(whole + "mehr"), Failure{});
}

TEST_F(BinaryFile, CountsAreNotTrusted) {
    const std::string head = Text("SYM") + std::string(16, '\0');
    EXPECT_EQ(Read(head + Bytes<LONG>(0x7FFFFFFE)), RunTimeError(7));
    EXPECT_EQ(Read(head + Bytes<LONG>(-2)), RunTimeError(9));
}

TEST_F(BinaryFile, AFailedReadLeavesNothingOlder) {
    const Ref<_CSymbol> symbol = support::NewSymbol(1, 2, 3, 4, {{.type = symCircle, .points = {{1, 2}}}});
    EXPECT_OK(symbol->put_FilePath(support::Bstr(path)));
    support::WriteBytes(path, Text("SYM") + Bytes<LONG>(77));
    EXPECT_EQ(Outcome(symbol->ReadFromFile()), RunTimeError(62));
    EXPECT_EQ(support::Dispatch(symbol).Get(L"Width").value.Long(), 77);
    EXPECT_EQ(support::Dispatch(symbol).Get(L"RefX").value.Long(), 0);
    EXPECT_TRUE(ElementsOf(symbol.Get()).empty());
}

} // namespace
