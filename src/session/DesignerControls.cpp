// SPDX-License-Identifier: MIT
#include "embedment/EmbedmentFiles.h"
#include "session/Constants.h"
#include "session/DesignerDlg.h"
#include "session/ReportControls.h"
#include "session/Session.h"

namespace lumerin {

// Captions and enabled states of the report dialog, by what the project and the selection allow. The flags
// of the tables follow almost the same rules (ApplicableTables), but not for masts and walls:
// there the buttons decide.

void CDesignerDlg::RefreshControls() {
    EnableItem(IDC_CHOOSE_CASES, !g_AllLoadCases);
    RefreshCaptions();
    if (g_DataSet.m_nPiers >= 2) {
        RefreshSeveralPiers();
    } else {
        RefreshOnePier(g_DataSet.m_nStructureType);
    }
}

void CDesignerDlg::RefreshCaptions() {
    const std::string plural = g_DataSet.GetLoadLabel(false, true);
    SetItemText(IDC_CASE_SELECTION, g_DataSet.GetLoadLabel(false, false) + " Selection");
    SetItemText(IDC_ALL_CASES, "All " + plural);
    SetItemText(IDC_CUSTOM_CASES, "Custom Set of " + plural);
    SetItemText(IDC_CHOOSE_CASES, "Choose " + plural);
}

void CDesignerDlg::EnableEmbedment() {
    EnableItem(IDC_EMBEDMENT, HasEmbedmentStudy(g_InputFilePath));
}

void CDesignerDlg::RefreshOnePier(StructureType type) {
    EnableEmbedment();
    if (type != kTypePier && type != kTypePileGroup && type != kTypePileBent) {
        // Such a project offers the embedment study alone.
        for (const int id : {IDC_FULL_REPORT, IDC_TITLE_PAGE, IDC_FORMAT_TEXT}) EnableItem(id, false);
        for (int id = IDC_MAX_AXIAL; id <= IDC_FOOTER_FILE_NAME; ++id) EnableItem(id, false);
        return;
    }
    const bool hasCap = type != kTypePileGroup;
    const std::string cap = type == kTypePileBent ? g_BentCap : g_PierCap;
    RefreshMemberTables(type == kTypePier);
    RefreshCapTables(cap);
    if (!hasCap) {
        for (const int id : {IDC_CAP_SHEAR, IDC_CAP_MOMENT}) EnableItem(id, false);
    } else {
        SetItemText(IDC_CAP_ENVELOPES, cap + " Envelopes");
    }
    EnableItem(IDC_CAP_ENVELOPES, hasCap);
}

void CDesignerDlg::RefreshSeveralPiers() {
    const bool hasPier = g_DataSet.HasStructureType(kTypePier);
    const bool hasBent = g_DataSet.HasStructureType(kTypePileBent);
    std::string cap = hasPier ? g_PierCap : "";
    if (hasPier && hasBent) cap += " / ";
    if (hasBent) cap += g_BentCap;
    EnableEmbedment();
    RefreshMemberTables(hasPier);
    RefreshCapTables(cap);
    SetItemText(IDC_CAP_ENVELOPES,
                cap + " Envelopes");  // without either cap word the captions keep their leading blank
}

void CDesignerDlg::RefreshMemberTables(bool columnTables) {
    const bool notOnlyFatigue = !g_DataSet.HasOnlyFatigue(m_state.selection);
    for (const int id : {IDC_MAX_AXIAL, IDC_PILE_DC, IDC_PILE_FORCES}) EnableItem(id, notOnlyFatigue);
    for (const int id : {IDC_COLUMN_DC, IDC_COLUMN_FORCES}) EnableItem(id, columnTables && notOnlyFatigue);
    EnableItem(IDC_EXTRA_MEMBERS, g_DataSet.HasExtraMembers() && notOnlyFatigue);
}

void CDesignerDlg::RefreshCapTables(const std::string& cap) {
    EnableItem(IDC_CAP_SHEAR, !g_DataSet.HasOnlyFatigue(m_state.selection));
    EnableItem(IDC_CAP_MOMENT, true);  // moments are designed for fatigue too
    SetItemText(IDC_CAP_SHEAR, cap + " Shear Design");
    SetItemText(IDC_CAP_MOMENT, cap + " Moment Design");
}

}  // namespace lumerin
