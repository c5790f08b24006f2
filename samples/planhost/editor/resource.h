#pragma once

// What the resources and the code call each other's parts by.
#define IDR_EDITOR 100
#define IDD_MOVE 101
#define IDI_PLANHOST 102
#define IDR_CONTEXT 103
#define IDD_KEYS 104
#define IDD_PRINT 105

#define IDM_NEW 200
#define IDM_OPEN 201
#define IDM_SAVE 202
#define IDM_SAVE_AS 203
#define IDM_EXPORT 204
#define IDM_QUIT 205
#define IDM_PRINT 206
#define IDM_UNDO 210
#define IDM_MOVE 211
#define IDM_MOVE_BY 212
#define IDM_DUPLICATE 213
#define IDM_REMOVE 214
#define IDM_MARK_ALL 215
#define IDM_REDO 216
#define IDM_CUT 217
#define IDM_COPY 218
#define IDM_PASTE 219
#define IDM_CHOOSE 220
#define IDM_AGAIN 221
#define IDM_CANCEL 222
#define IDM_FILTER 223
#define IDM_FRONT 224
#define IDM_BACK 225
#define IDM_PROPERTIES 226
#define IDM_ALIGN 230 // and seven more, in the order of Alignment
#define IDM_ZOOM_ALL 240
#define IDM_ZOOM_TRUE 241
#define IDM_ZOOM_MARKED 242
#define IDM_ZOOM_IN 243
#define IDM_ZOOM_OUT 244
#define IDM_GRID 245
#define IDM_SNAP 246
#define IDM_GO_ON 247
#define IDM_KEYS 250
#define IDM_RECENT 260 // and seven more

#define IDC_RELATIVE 300
#define IDC_ABSOLUTE 301
#define IDC_X 302
#define IDC_Y 303
#define IDC_LANDS 304
#define IDC_KEYS 305
#define IDC_SCALE 306
#define IDC_PREVIEW 307
#define IDC_PAGES 308
