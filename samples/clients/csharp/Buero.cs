// A host in C#, early bound: an office. The types come from QSymbol.Interop.cs, which is made from the type libraries.
// csc Buero.cs QSymbol.Interop.cs /win32manifest:Buero.manifest         then   Buero.exe CATALOGUE OUTFOLDER
// With the manifest, and the libraries in the same folder, nothing need be registered.
using System;
using System.IO;
using System.Runtime.InteropServices;
using QMath;
using QPlan;
using QSymbol;

static class Buero
{
    // The libraries live in a single-threaded apartment, like a window. Without [STAThread] .NET makes a thread for them
    // and sends every call there: right, but some hundred times slower.
    [STAThread]
    static int Main(string[] arguments)
    {
        if (arguments.Length != 2) { Console.WriteLine("Buero.exe CATALOGUE OUTFOLDER"); return 2; }
        try { return Furnish(arguments[0], arguments[1]) ? 0 : 1; }
        catch (COMException error) when ((uint)error.ErrorCode == 0x80040154)
        {
            Console.WriteLine("Not registered for {0} bits: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll (or a manifest)",
                              IntPtr.Size * 8);
            return 1;
        }
    }

    static bool Furnish(string catalogue, string target)
    {
        var symbols = (_CSymbolColl)new CSymbolColl();
        symbols.ReadKatalog(catalogue);
        foreach (var folder in Directory.GetDirectories(catalogue, "*", SearchOption.AllDirectories)) symbols.ReadKatalog(folder);
        if (symbols.Count == 0)
        {
            Console.WriteLine("No *.syb below {0}: qsymbol convert -r --to syb SOURCE {0}", catalogue);
            return false;
        }

        var plan = (_CPlan)new CPlan();
        plan.Symbols = symbols;
        plan.Add("Schreibtisch", 150000, 120000, Math.PI);     // 1/100 mm
        plan.Add("Regal", 150000, 5000, 0);
        plan.Add("Pflanze", 40000, 40000, 0).Angle = 0.5;

        var map = (_CTrans)new CTrans();
        map.SetScale(400);
        var picture = (_CPicture)new CPicture();
        picture.Create(800, 500, 0xFFFFFF);
        plan.Draw(picture, map);
        picture.Write2File(Path.Combine(target, "buero.png"));
        plan.WriteDxf(Path.Combine(target, "buero.dxf"), PlanUnitConstants.planMillimetres);
        _CPlacement hit = plan.HitTest(map, 375, 200);
        Console.WriteLine("hit: " + (hit == null ? "nothing" : hit.SymbolName));
        try { plan.Add("Einhorn", 0, 0, 0); }
        catch (COMException error) { Console.WriteLine("error {0} in {1}: {2}", error.ErrorCode & 0xFFFF, error.Source, error.Message); }
        catch (ArgumentException error) { Console.WriteLine("error 5 in {0}: {1}", error.Source, error.Message); }
        return true;
    }
}
