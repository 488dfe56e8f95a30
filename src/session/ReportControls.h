// SPDX-License-Identifier: MIT
#pragma once

// The identifiers of the dialogs and their controls. Macros, because the resource compiler reads them too.
// Scripts name a control by its number.

// Dialogs.
#define IDD_REPORT 1000
#define IDD_EMBEDMENT 1002
#define IDD_LOAD_CASES 1005

// The report dialog.
#define IDC_FULL_REPORT 1001
#define IDC_TITLE_PAGE 1002
#define IDC_MAX_AXIAL 1004
#define IDC_PILE_DC 1005
#define IDC_COLUMN_DC 1006
#define IDC_CAP_SHEAR 1007
#define IDC_CAP_MOMENT 1008
#define IDC_CAP_ENVELOPES 1009
#define IDC_PILE_FORCES 1010
#define IDC_COLUMN_FORCES 1011
#define IDC_EXTRA_MEMBERS 1012
#define IDC_PILE_HEADS 1013
#define IDC_FOOTER_VERSION 1014
#define IDC_FOOTER 1015
#define IDC_FOOTER_TIME 1016
#define IDC_FOOTER_DATE 1017
#define IDC_FOOTER_FILE_NAME 1018
#define IDC_FORMAT_PDF 1019
#define IDC_FORMAT_TEXT 1020
#define IDC_FORMAT_EXCEL 1021
#define IDC_EMBEDMENT 1022
#define IDC_ALL_CASES 1037
#define IDC_CUSTOM_CASES 1038
#define IDC_CHOOSE_CASES 1039
#define IDC_CASE_SELECTION 1041

// The load case dialog.
#define IDC_CASE_GRID 1040
#define IDC_CASE_EXPORT 1042
#define IDC_CASES_ALL 1046
#define IDC_CASES_NONE 1047

// The dialog of the embedment study.
#define IDC_STUDY_EXPORT 1022
#define IDC_STUDY_CASE 1025
#define IDC_STUDY_SPIN 1026
#define IDC_STUDY_QUANTITY 1027
#define IDC_STUDY_GRID 1028
#define IDC_STUDY_GRAPH 1029
#define IDC_STUDY_CASE_LABEL 1030
#define IDC_STUDY_NOTES 1031
#define IDC_STUDY_INDIVIDUAL 1033
#define IDC_STUDY_ENVELOPE 1034
#define IDC_STUDY_ENVELOPE_MODE 1035
#define IDC_STUDY_PLOT_LABEL 1036
