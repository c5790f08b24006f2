// A host in C#, late bound: no types, names only, as a script. A terrace.
// csc Spaet.cs /r:Microsoft.CSharp.dll         then   Spaet.exe CATALOGUE OUTFOLDER
using System;
using System.IO;
using System.Runtime.InteropServices;

static class Spaet
{
    static dynamic Create(string progId)
    {
        var type = Type.GetTypeFromProgID(progId);
        if (type != null) return Activator.CreateInstance(type);
        throw new InvalidOperationException(progId + " is not registered for this bitness: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll");
    }

    [STAThread]
    static void Main(string[] arguments)
    {
        try
        {
            dynamic catalogue = Create("QSymbol.CSymbolColl"), plan = Create("QPlan.CPlan"), picture = Create("QPlan.CPicture"), map = Create("QMath.CTrans");
            catalogue.ReadKatalog(arguments[0]);
            foreach (var folder in Directory.GetDirectories(arguments[0])) catalogue.ReadKatalog(folder);
            if (catalogue.Count == 0) throw new FileNotFoundException("No *.syb in " + arguments[0]);
            plan.Symbols = catalogue;
            plan.Add("Gartentisch", 150000, 150000, 0.0);
            plan.Add("Sonnenschirm", 250000, 250000, 0.0);
            plan.Add("Liegestuhl", 400000, 60000, 0.2);
            map.SetScale(600);
            picture.Create(800, 600);
            plan.Draw(picture, map);
            picture.Write2File(Path.Combine(arguments[1], "terrasse.png"));
            plan.WriteDxf(Path.Combine(arguments[1], "terrasse.dxf"));
            dynamic hit = plan.HitTest(map, 250, 250);
            Console.WriteLine(hit == null ? "nothing" : hit.SymbolName);
            plan.RemoveById(99);
        }
        catch (COMException error) { Console.WriteLine("error {0} in {1}: {2}", error.ErrorCode & 0xFFFF, error.Source, error.Message); }
        catch (Exception error) { Console.WriteLine(error.Message); }
    }
}
