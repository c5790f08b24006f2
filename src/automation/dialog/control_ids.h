#pragma once

// Read by the resource compiler as well, hence no constants.
#define IDD_frmSymSelect 101

#define IDC_Label 1001
#define IDC_lbSymbole 1002
#define IDC_Frame 1003
#define IDC_SymPict 1004
#define IDC_LabelBreite 1005
#define IDC_txBreite 1006
#define IDC_LabelHoehe 1007
#define IDC_txHoehe 1008
#define IDC_pbJPG 1009
#define IDC_Progress 1010
#define IDC_txProgress 1011
#define IDC_txSaved 1012
#define IDC_pbOk IDOK
#define IDC_pbCancel IDCANCEL
