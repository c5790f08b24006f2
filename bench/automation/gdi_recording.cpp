#include "automation/gdi_recording.h"

#include "com/bstr.h"
#include "com/com_ptr.h"
#include "com/error_info.h"

#include <olectl.h>

#include <algorithm>
#include <cmath>

namespace {

/// A font's points as world units of 1/100 mm.
constexpr double kWorldPerPoint = 25.4 / 72 * 100;
constexpr double kTenthsPerRadian = 1800 / 3.14159265358979323846;

LONG Round(double value) {
    return static_cast<LONG>(std::lrint(value));
}

LOGFONTW FontOf(_CSymElement& element, const GdiRecording::Placement& placement, bool hundredths) {
    com::ComPtr<IFontDisp> disp;
    com::Check(element.get_TxtFont(disp.Put()));
    const com::ComPtr<IFont> font = disp.As<IFont>();
    com::Bstr name;
    CY size{};
    BOOL bold = FALSE;
    BOOL italic = FALSE;
    BOOL underline = FALSE;
    com::Check(font->get_Name(name.Put()));
    com::Check(font->get_Size(&size));
    com::Check(font->get_Bold(&bold));
    com::Check(font->get_Italic(&italic));
    com::Check(font->get_Underline(&underline));
    double textAngle = 0;
    com::Check(element.get_TxtAngle(&textAngle));

    const double points = static_cast<double>(size.int64) / 10000 / (hundredths ? 100 : 1);
    LOGFONTW result{};
    result.lfHeight = -std::max(1L, Round(points * kWorldPerPoint / placement.scale));
    result.lfEscapement = Round((placement.angle + textAngle) * kTenthsPerRadian);
    result.lfOrientation = result.lfEscapement;
    result.lfWeight = bold != FALSE ? FW_BOLD : FW_NORMAL;
    result.lfItalic = italic != FALSE ? TRUE : FALSE;
    result.lfUnderline = underline != FALSE ? TRUE : FALSE;
    result.lfCharSet = DEFAULT_CHARSET;
    result.lfOutPrecision = OUT_TT_PRECIS;
    lstrcpynW(result.lfFaceName, name.Get(), LF_FACESIZE);
    return result;
}

std::string AnsiText(BSTR text) {
    char bytes[512];
    const int length = WideCharToMultiByte(CP_ACP, 0, text, static_cast<int>(SysStringLen(text)), bytes,
                                           sizeof bytes, nullptr, nullptr);
    return std::string(bytes, static_cast<std::size_t>(length));
}

} // namespace

GdiRecording::GdiRecording(_CSymbol& symbol, const Placement& placement) {
    LONG refX = 0;
    LONG refY = 0;
    com::Check(symbol.get_RefX(&refX));
    com::Check(symbol.get_RefY(&refY));
    const double sine = std::sin(-placement.angle);
    const double cosine = std::cos(-placement.angle);
    const auto toPixel = [&](LONG px, LONG py) {
        const double x = px - refX;
        const double y = py - refY;
        return POINT{Round(Round(x * cosine - y * sine + placement.x) / placement.scale),
                     Round(Round(x * sine + y * cosine + placement.y) / placement.scale)};
    };

    com::ComPtr<_CSymElementColl> elements;
    com::Check(symbol.GetSymElements(elements.Put()));
    LONG count = 0;
    com::Check(elements->get_Count(&count));
    for (LONG i = 1; i <= count; ++i) {
        com::ComPtr<_CSymElement> element;
        com::Check(elements->get_ItemByPos(i, element.Put()));
        Call call;
        SymElementTypeConstants type{};
        VARIANT_BOOL closed = VARIANT_FALSE;
        LONG radius = 0;
        com::Bstr text;
        com::ComPtr<_CPtList> list;
        com::Check(element->get_ElementType(&type));
        com::Check(element->get_LineClosed(&closed));
        com::Check(element->get_Radius(&radius));
        com::Check(element->get_TxtAlign(&call.align));
        com::Check(element->get_TxtBkMode(&call.bkMode));
        com::Check(element->get_Text(text.Put()));
        com::Check(element->get_PtList(list.Put()));
        call.type = type;
        call.closed = closed != VARIANT_FALSE;
        call.text = AnsiText(text.Get());
        LONG pointCount = 0;
        com::Check(list->get_Count(&pointCount));
        for (LONG p = 1; p <= pointCount; ++p) {
            com::ComPtr<_CPt> pt;
            LONG x = 0;
            LONG y = 0;
            com::Check(list->get_Item(p, pt.Put()));
            com::Check(pt->get_X(&x));
            com::Check(pt->get_Y(&y));
            call.points.push_back(toPixel(x, y));
        }
        if (type == symCircle || type == symArc) {
            const LONG pixels = Round(radius / placement.scale);
            const POINT centre = call.points.front();
            call.box = {centre.x - pixels, centre.y - pixels, centre.x + pixels, centre.y + pixels};
        }
        if (type == symText)
            call.font = FontOf(*element.Get(), placement, call.closed);
        calls_.push_back(std::move(call));
    }
}

void GdiRecording::Play(HDC context) const {
    Play(context, [](HDC target, const Call& call) {
        TextOutA(target, call.points[0].x, call.points[0].y, call.text.data(),
                 static_cast<int>(call.text.size()));
    });
}

void GdiRecording::PlayInverted(HDC context) const {
    Play(context, [](HDC target, const Call& call) {
        const HBRUSH brush = CreateSolidBrush(GetTextColor(target));
        const HGDIOBJ previous = SelectObject(target, brush);
        BeginPath(target);
        TextOutA(target, call.points[0].x, call.points[0].y, call.text.data(),
                 static_cast<int>(call.text.size()));
        EndPath(target);
        FillPath(target);
        SelectObject(target, previous);
        DeleteObject(brush);
    });
}

void GdiRecording::Play(HDC context, void (*writeText)(HDC context, const Call& call)) const {
    for (const Call& call : calls_) {
        const int count = static_cast<int>(call.points.size());
        switch (call.type) {
        case symPoly:
            if (call.closed)
                Polygon(context, call.points.data(), count);
            else
                Polyline(context, call.points.data(), count);
            break;
        case symCircle: Ellipse(context, call.box.left, call.box.top, call.box.right, call.box.bottom); break;
        case symArc:
            Arc(context, call.box.left, call.box.top, call.box.right, call.box.bottom, call.points[1].x,
                call.points[1].y, call.points[2].x, call.points[2].y);
            break;
        case symText: {
            SetTextAlign(context, static_cast<UINT>(call.align));
            SetBkMode(context, call.bkMode);
            const HFONT font = CreateFontIndirectW(&call.font);
            const HGDIOBJ previous = SelectObject(context, font);
            writeText(context, call);
            SelectObject(context, previous);
            DeleteObject(font);
            break;
        }
        default: break;
        }
    }
}
