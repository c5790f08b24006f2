#include "support/sample_symbols.h"

namespace support {

using qsymbol::ElementRecord;
using qsymbol::ElementType;
using qsymbol::FontRecord;
using qsymbol::Symbol;

Symbol WashRoom() {
    Symbol symbol;
    symbol.width = 300;
    symbol.height = 200;
    symbol.refX = 150;
    symbol.refY = 100;
    symbol.elements.resize(3);

    ElementRecord& box = symbol.elements[0];
    box.type = ElementType::Poly;
    box.mainColor = 1;
    box.lineWidth = 25;
    box.lineClosed = true;
    box.points = {{0, 0}, {0, 200}, {300, 200}, {300, 0}};

    ElementRecord& circle = symbol.elements[1];
    circle.type = ElementType::Circle;
    circle.mainColor = 2;
    circle.fillColor = 3;
    circle.radius = 50;
    circle.points = {{150, 100}};

    ElementRecord& text = symbol.elements[2];
    text.type = ElementType::Text;
    text.mainColor = 1;
    text.text = u"WC";
    text.points = {{150, 100}};
    text.font.emplace();
    return symbol;
}

std::string WashRoomText() {
    return "SYM;CNT=3;WID=3,00;HEI=2,00;RPX=1,50;RPY=1,00\r\n"
           "POLY;CNT=4;COL=1;WID=0,25;CLS=TRUE;FIL=-1\r\n"
           "POINT;0,00;0,00\r\n"
           "POINT;0,00;2,00\r\n"
           "POINT;3,00;2,00\r\n"
           "POINT;3,00;0,00\r\n"
           "CIRCLE;COL=2;WID=0,00;MPX=1,50;MPY=1,00;RAD=0,50;FIL=3\r\n"
           "TEXT;COL=1;ANG=0,00;NAM=Arial;HEI=6;BOL=FALSE;ITA=FALSE;UND=FALSE;STR=FALSE;ALI=0;BKM=1\r\n"
           "POINT;1,50;1,00\r\n"
           "STRING;\"WC\"\r\n";
}

Symbol EveryField() {
    Symbol symbol;
    symbol.width = 123456;
    symbol.height = -7;
    symbol.refX = 2147483647;
    symbol.refY = -2147483647 - 1;
    symbol.elements.resize(4);

    ElementRecord& line = symbol.elements[0];
    line.type = ElementType::Poly;
    line.lineClosed = true;
    line.lineWidth = 33;
    line.mainColor = 0x00FFEEDD;
    line.fillColor = 255;
    line.points = {{-1, 2147483647}, {-2147483647 - 1, 5}, {7, 8}};

    ElementRecord& circle = symbol.elements[1];
    circle.type = ElementType::Circle;
    circle.lineWidth = 1;
    circle.radius = 199;
    circle.mainColor = 65536;
    circle.fillColor = 0;
    circle.points = {{12, -13}};

    ElementRecord& arc = symbol.elements[2];
    arc.type = ElementType::Arc;
    arc.lineWidth = 101;
    arc.radius = 2147483647;
    arc.mainColor = 77;
    arc.points = {{1, 2}, {3, 4}, {-5, -6}};

    ElementRecord& text = symbol.elements[3];
    text.type = ElementType::Text;
    text.lineClosed = true;
    text.textAlign = 24;
    text.textBkMode = 2;
    text.textAngle = 0.7853981633974483;
    text.mainColor = 4711;
    text.text = u"Küche \"Süd\" 10 €";
    text.points = {{-99, 100}};
    text.font = FontRecord{u"Börse Sans", 14, true, true, true, true};
    return symbol;
}

} // namespace support
