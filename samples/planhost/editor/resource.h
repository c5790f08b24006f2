#pragma once

// What the resources and the code call each other's parts by.
#define IDR_EDITOR 100
#define IDD_MOVE 101

#define IDM_NEW 200
#define IDM_OPEN 201
#define IDM_SAVE 202
#define IDM_SAVE_AS 203
#define IDM_EXPORT 204
#define IDM_QUIT 205
#define IDM_UNDO 210
#define IDM_MOVE 211
#define IDM_MOVE_BY 212
#define IDM_DUPLICATE 213
#define IDM_REMOVE 214
#define IDM_MARK_ALL 215
#define IDM_CHOOSE 220
#define IDM_AGAIN 221
#define IDM_CANCEL 222

#define IDC_RELATIVE 300
#define IDC_ABSOLUTE 301
#define IDC_X 302
#define IDC_Y 303
