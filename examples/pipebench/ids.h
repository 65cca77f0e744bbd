// Numbers that the resources, the language table and the program share. Macros, as the resource
// compiler reads this file too.
#ifndef PIPEBENCH_IDS_H
#define PIPEBENCH_IDS_H

// Resources
#define IDR_MAIN_MENU 100
#define IDR_ACCELERATORS 101
#define IDI_PIPEBENCH 102
#define IDI_NEW 103
#define IDI_OPEN 104
#define IDI_SAMPLE 105
#define IDI_OPTIONS 106
#define IDI_HELP 107
#define IDD_PIPE 110
#define IDD_GENERAL 111
#define IDD_FLOW 112
#define IDD_FOLDERS 113

#define IDR_TOOLBARS 120
#define IDR_TOOLBAR_BUTTONS 121
#define IDB_TOOLBAR 122

// Commands
#define IDM_NEW 201
#define IDM_EXIT 202
#define IDM_OPEN 203
#define IDM_SAMPLE 204
#define IDM_SAVE 205
#define IDM_SAVE_AS 206
#define IDM_START_PAGE 207
#define IDM_PAGE_SETUP 208
#define IDM_PRINT 209
#define IDM_SAVE_PDF 210
#define IDM_DUPLICATE 211
#define IDM_DELETE 212
#define IDM_ADD 213
#define IDM_EDIT 214
#define IDM_FLOW 215
#define IDM_CHECK 216
#define IDM_SEND 219
#define IDM_SORT_NAME 221
#define IDM_SORT_LENGTH 222
#define IDM_SORT_DIAMETER 223
#define IDM_DECIMALS_0 231
#define IDM_DECIMALS_3 234
#define IDM_SKETCH 241
#define IDM_STATUS_BAR 242
#define IDM_OPTIONS 243
#define IDM_TREE 244
#define IDM_FLOATING_TOOLS 245
#define IDM_ABOUT 251
#define IDM_HELP 252
// One command per language of the table, in its order; the first item stands in the resource.
#define IDM_LANGUAGE_FIRST 260
#define IDM_LANGUAGE_LAST 291

// Controls
#define IDC_NAME 301
#define IDC_MATERIAL 302
#define IDC_LENGTH 303
#define IDC_DIAMETER 304
#define IDC_PRICE 305
#define IDC_LENGTH_UNIT 306
#define IDC_DIAMETER_UNIT 307
#define IDC_PRICE_UNIT 308
#define IDC_LANGUAGE 311
#define IDC_PREVIEW_NUMBER 312
#define IDC_PREVIEW_MONEY 313
#define IDC_PREVIEW_DATE 314
#define IDC_DECIMALS 315
#define IDC_UNITS 321
#define IDC_CURVE_FILE 322
#define IDC_BROWSE 323
#define IDC_CURVE 324
#define IDC_OPERATING_POINT 325
// One number per field of the page, per unit beside it, per result; see kFlowFields, kResults.
#define IDC_FLOW_FIELDS 330
#define IDC_FLOW_UNITS 340
#define IDC_FLOW_RESULTS 350
// One number per work directory, and per button beside it; see kWorkDirectories.
#define IDC_DIRECTORIES 360
#define IDC_DIRECTORY_BUTTONS 370
#define IDC_TOOLBARS 390
#define IDC_UNITS_BAR 391

// Pages of the help; see help/pages.toml
#define IDH_FILES 2
#define IDH_CHECKS 3
#define IDH_OPTIONS 4
#define IDH_FOLDERS 5

// Strings of the language table
#define IDS_PROGRAM 1
#define IDS_ABOUT 2
#define IDS_NOT_A_NUMBER 11
#define IDS_NAME_MISSING 15
#define IDS_NAME_TAKEN 16
#define IDS_OUT_OF_RANGE 17
#define IDS_BAD_ROUGHNESS 18
#define IDS_BAD_DECIMALS 19
#define IDS_PIPE_COUNT 21
#define IDS_TOTAL_LENGTH 22
#define IDS_TOTAL_CONTENT 23
#define IDS_TOTAL_PRICE 24
#define IDS_OPERATING_POINT 25
#define IDS_NO_OPERATING_POINT 26
#define IDS_METRIC_UNITS 27
#define IDS_US_UNITS 28
#define IDS_CURVE_UNREADABLE 31
#define IDS_CURVE_LARGE 32
#define IDS_CURVE_COLUMNS 33
#define IDS_CURVE_NUMBER 34
#define IDS_CURVE_RANGE 35
#define IDS_CURVE_TWICE 36
#define IDS_CURVE_SHORT 37
#define IDS_BAD_DIRECTORY 38
#define IDS_NOT_SAVED 39
#define IDS_UNTITLED 41
#define IDS_SAVE_CHANGES 42
#define IDS_LINE_FILTER 43
#define IDS_LINE_UNREADABLE 44
#define IDS_NO_LINE 45
#define IDS_BAD_PIPE 46
#define IDS_LINE_NOT_SAVED 47
#define IDS_CURVE_REACH 53
#define IDS_START_TITLE 54
#define IDS_CHECKED 61
#define IDS_ALL_WELL 62
#define IDS_TOO_FAST 63
#define IDS_TOO_SLOW 64
#define IDS_NO_PRICE 65
#define IDS_GREAT_STEP 66
#define IDS_CORROSION 67
#define IDS_REPORT_TITLE 71
#define IDS_REPORT_LINE 72
#define IDS_REPORT_DATE 73
#define IDS_REPORT_PIPES 74
#define IDS_REPORT_TOTAL 75
#define IDS_REPORT_FLOW 76
#define IDS_REPORT_PUMP 77
#define IDS_REPORT_WARNINGS 78
#define IDS_REPORT_PAGE 80
#define IDS_REPORT_CONTINUED 81
#define IDS_PDF_FILTER 82
#define IDS_REPORT_VELOCITIES 83
#define IDS_REPORT_FLUID 84
// The tip of a command's button has the number of the command added to this.
#define IDS_TIPS 2000

#endif
