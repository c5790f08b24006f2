# A host in PowerShell: a study.
# powershell -ExecutionPolicy Bypass -File Arbeitszimmer.ps1 CATALOGUE OUTFOLDER
param([Parameter(Mandatory)] [string] $Catalogue, [Parameter(Mandatory)] [string] $Target)
$ErrorActionPreference = 'Stop'

function New-Object2([string] $ProgId) {
    try { New-Object -ComObject $ProgId }
    catch {
        $bits = [IntPtr]::Size * 8
        throw "$ProgId is not registered for $bits bits. In the folder of the DLLs: regsvr32 QMath.dll, QSymbol.dll, QPlan.dll"
    }
}

$symbols = New-Object2 QSymbol.CSymbolColl
@($Catalogue) + (Get-ChildItem $Catalogue -Directory -Recurse | ForEach-Object FullName) |
    ForEach-Object { $symbols.ReadKatalog($_) }
if ($symbols.Count -eq 0) { throw "No *.syb below ${Catalogue}: qsymbol convert -r --to syb SOURCE $Catalogue" }

$plan = New-Object2 QPlan.CPlan
$plan.Symbols = $symbols
# Add answers with what it placed: nobody asked for it here.
[void] $plan.Add('Schreibtisch', 150000, 20000, 0)
[void] $plan.Add('Sessel', 350000, 250000, 2.4)
1..3 | ForEach-Object { [void] $plan.Add('Regal', 90000 * $_, 330000, [Math]::PI) }

$trans = New-Object2 QMath.CTrans
$trans.SetScale(500)
$picture = New-Object2 QPlan.CPicture
$picture.Create(900, 700)
$plan.Draw($picture, $trans)
$picture.Write2File((Join-Path $Target 'arbeitszimmer.png'))
$plan.WriteDxf((Join-Path $Target 'arbeitszimmer.dxf'))

$hit = $plan.HitTest($trans, 300, 80)
if ($hit) { "hit: $($hit.SymbolName) at $($hit.LogX), $($hit.LogY)" } else { 'hit: nothing' }
try { [void] $plan.Add('Einhorn', 0, 0, 0) }
catch {
    $cause = $_.Exception.GetBaseException()
    'error {0} in {1}: {2}' -f ($cause.HResult -band 0xFFFF), $cause.Source, $cause.Message
}
