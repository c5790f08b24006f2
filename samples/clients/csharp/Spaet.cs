// A host in C#, late bound: no types, names only, as a script. A terrace.
// csc Spaet.cs         then   Spaet.exe CATALOGUE OUTFOLDER
using System;
using System.IO;
using System.Reflection;
using System.Runtime.InteropServices;
// An object known by names. In .NET Framework, and from .NET 5 on, `dynamic` does the same.
sealed class Late
{
    public readonly object Target;
    public Late(object target) { Target = target; }
    public static Late Create(string progId)
    {
        // The name alone tells nothing: it is known as well when only the libraries of the other bitness are registered.
        try { return new Late(Activator.CreateInstance(Type.GetTypeFromProgID(progId, true))); }
        catch (COMException) { throw new InvalidOperationException(string.Format(
            "{0} is not registered for {1} bits: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll", progId, IntPtr.Size * 8)); }
    }

    public object Ask(string name, BindingFlags kind, params object[] values)
    {
        try { return Target.GetType().InvokeMember(name, kind, null, Target, values); }
        catch (TargetInvocationException error) { throw error.InnerException; } // the library's own words
    }
    public object Call(string name, params object[] values) { return Ask(name, BindingFlags.InvokeMethod, values); }
    public object Get(string name) { return Ask(name, BindingFlags.GetProperty); }
    public void Set(string name, Late value) { Ask(name, BindingFlags.SetProperty, value.Target); }
}

static class Spaet
{
    [STAThread]
    static int Main(string[] arguments)
    {
        if (arguments.Length != 2) { Console.WriteLine("Spaet.exe CATALOGUE OUTFOLDER"); return 2; }
        try { Furnish(arguments[0], arguments[1]); return 0; }
        catch (InvalidOperationException error) { Console.WriteLine(error.Message); return 1; }
    }

    static void Furnish(string folder, string target)
    {
        Late symbols = Late.Create("QSymbol.CSymbolColl"), plan = Late.Create("QPlan.CPlan"), picture = Late.Create("QPlan.CPicture"), map = Late.Create("QMath.CTrans");
        symbols.Call("ReadKatalog", folder);
        foreach (var inner in Directory.GetDirectories(folder)) symbols.Call("ReadKatalog", inner);
        if ((int)symbols.Get("Count") == 0) throw new InvalidOperationException("No *.syb in " + folder + ": qsymbol convert -r --to syb SOURCE " + folder);
        plan.Set("Symbols", symbols);
        plan.Call("Add", "Gartentisch", 150000, 150000, 0.0);
        plan.Call("Add", "Sonnenschirm", 250000, 250000, 0.0);
        plan.Call("Add", "Liegestuhl", 400000, 60000, 0.2);
        map.Call("SetScale", 600.0);
        picture.Call("Create", 800, 600);
        plan.Call("Draw", picture.Target, map.Target);
        picture.Call("Write2File", Path.Combine(target, "terrasse.png"));
        plan.Call("WriteDxf", Path.Combine(target, "terrasse.dxf"));
        var hit = plan.Call("HitTest", map.Target, 250, 250);
        Console.WriteLine("hit: " + (hit == null ? "nothing" : new Late(hit).Get("SymbolName")));
        try { plan.Call("RemoveById", 99); }
        catch (Exception error) { Console.WriteLine("error {0} in {1}: {2}", Marshal.GetHRForException(error) & 0xFFFF, error.Source, error.Message); }
    }
}
