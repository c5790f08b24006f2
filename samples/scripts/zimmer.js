// A dozen lines: the room of a plan file as a picture, as a metafile, as SVG and as DXF, and a corner of it in detail.
// cscript //nologo zimmer.js PLANFILE OUTFOLDER CATALOGUEFOLDER...

function fail(text) { WScript.Echo(text); WScript.Quit(1); }
try { var trans = new ActiveXObject("QMath.CTrans"), catalogue = new ActiveXObject("QSymbol.CSymbolColl"); }
catch (e) { fail("Es fehlt, im Ordner der Bibliotheken: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"); }
var a = WScript.Arguments, out = a(1) + "\\";
for (var i = 2; i < a.length; ++i) catalogue.ReadKatalog(a(i));
if (catalogue.Count == 0) fail("Keine *.syb dort: qsymbol convert -r --to syb TEXTORDNER KATALOGORDNER");
var plan = new ActiveXObject("QPlan.CPlan"); plan.Symbols = catalogue;
plan.ReadFromFile(a(0)); WScript.Echo(plan.Count + " Symbole");
plan.WritePicture(out + "zimmer.png", 1000); plan.WritePicture(out + "zimmer.emf", 1000);
plan.WriteSvg(out + "zimmer.svg"); plan.WriteDxf(out + "zimmer.dxf");
var picture = new ActiveXObject("QPlan.CPicture"); picture.Create(400, 300);
trans.SetScale(300); trans.SetOffsetX(60000); trans.SetOffsetY(60000);
plan.Draw(picture, trans); picture.Write2File(out + "ecke.jpg");
