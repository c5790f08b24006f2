// A host in JScript: a circle of chairs, as a picture and a drawing; what lies in a rectangle; an error.
// cscript //nologo stuhlkreis.js OUTFOLDER CATALOGUEFOLDER...
// JScript passes values only, so results come from properties and return values, never from arguments.
var METRE = 100000;

function quit(text) {
    WScript.Echo(text);
    WScript.Quit(1);
}

function create(progId) {
    try {
        return new ActiveXObject(progId);
    } catch (error) {
        quit(progId + " ist nicht registriert: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll (" + error.message + ")");
    }
}

var argument = WScript.Arguments;
if (argument.length < 2) quit("Aufruf: cscript //nologo stuhlkreis.js AUSGABEORDNER KATALOGORDNER...");
var map = create("QMath.CTrans"), symbols = create("QSymbol.CSymbolColl");
for (var folder = 1; folder < argument.length; ++folder) symbols.ReadKatalog(argument(folder));
if (symbols.Count == 0) quit("Keine *.syb in " + argument(1) + "; aus Textdateien: qsymbol convert -r --to syb TEXTE KATALOG");

var plan = create("QPlan.CPlan");
plan.Symbols = symbols;
plan.Add("Teppich rund", 1.6 * METRE, 1.6 * METRE, 0);
for (var i = 0; i < 6; ++i) {
    var turn = i * Math.PI / 3;
    // The chair's insertion point is in the middle of its back; y grows downwards.
    plan.Add("Stuhl", (1.6 + 1.1 * Math.sin(turn)) * METRE, (1.6 + 1.1 * Math.cos(turn)) * METRE, turn + Math.PI);
}
plan.Add("Pflanze", 1.6 * METRE, 1.6 * METRE, 0);

map.SetScale(METRE / 200);
var picture = create("QPlan.CPicture");
picture.Create(640, 640, 0xF0F8FF);                // the background: blue, green, red
plan.Draw(picture, map);
picture.Write2File(argument(0) + "\\stuhlkreis.png");
plan.WriteDxf(argument(0) + "\\stuhlkreis.dxf", 1);   // 1: centimetres

var area = create("QMath.CRect"), names = [];
area.Left = area.Top = 0;
area.Right = area.Bottom = 160;
for (var hit = new Enumerator(plan.HitRect(map, area)); !hit.atEnd(); hit.moveNext())
    names.push(hit.item().SymbolName);
WScript.Echo("Oben links: " + names.join(", "));

try {
    symbols.RemoveOnPos(0);
} catch (error) {                                  // JScript has no source; the low half is the number
    WScript.Echo("Fehler " + (error.number & 0xFFFF) + ": " + error.message);
}
