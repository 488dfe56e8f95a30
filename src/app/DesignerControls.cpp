#include "app/DesignerDlg.h"
#include "embedment/EmbedmentFiles.h"
#include "model/DataSet.h"
#include "session/Constants.h"
#include "session/Session.h"

// Captions and enabled states of the report dialog, by what the project and the selection allow. The flags
// of the tables follow almost the same rules (CDataSet::SetTableApplicability), but not for masts and walls:
// there the buttons decide.

void CDesignerDlg::RefreshControls() {
    EnableItem(1039, !g_AllLoadCases);
    RefreshCaptions();
    if (g_DataSet.m_nPiers >= 2) {
        RefreshSeveralPiers();
    } else {
        RefreshOnePier(g_DataSet.m_nStructureType);
    }
}

void CDesignerDlg::RefreshCaptions() {
    const std::string plural = g_DataSet.GetLoadLabel(false, true);
    SetItemText(1041, g_DataSet.GetLoadLabel(false, false) + " Selection");
    SetItemText(1037, "All " + plural);
    SetItemText(1038, "Custom Set of " + plural);
    SetItemText(1039, "Choose " + plural);
}

void CDesignerDlg::EnableEmbedment() {
    EnableItem(1022, HasEmbedmentFile() && IsEmbedmentRequested());
}

void CDesignerDlg::RefreshOnePier(int type) {
    EnableEmbedment();
    if (type != kTypePier && type != kTypePileGroup && type != kTypePileBent) {
        // Such a project offers the embedment study alone.
        for (const int id : {1001, 1002, 1020}) EnableItem(id, false);
        for (int id = 1004; id <= 1018; ++id) EnableItem(id, false);
        return;
    }
    const bool hasCap = type != kTypePileGroup;
    const std::string cap = type == kTypePileBent ? g_BentCap : g_PierCap;
    RefreshMemberTables(type == kTypePier);
    RefreshCapTables(cap);
    if (!hasCap) {
        for (const int id : {1007, 1008}) EnableItem(id, false);
    } else {
        SetItemText(1009, cap + " Envelopes");
    }
    EnableItem(1009, hasCap);
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
    SetItemText(1009, cap + " Envelopes");  // without either cap word the captions keep their leading blank
}

void CDesignerDlg::RefreshMemberTables(bool columnTables) {
    const bool notOnlyFatigue = !g_DataSet.HasOnlyFatigue();
    for (const int id : {1004, 1005, 1010}) EnableItem(id, notOnlyFatigue);
    for (const int id : {1006, 1011}) EnableItem(id, columnTables && notOnlyFatigue);
    EnableItem(1012, g_DataSet.HasExtraMembers() && notOnlyFatigue);
}

void CDesignerDlg::RefreshCapTables(const std::string& cap) {
    EnableItem(1007, !g_DataSet.HasOnlyFatigue());
    EnableItem(1008, true);  // moments are designed for fatigue too
    SetItemText(1007, cap + " Shear Design");
    SetItemText(1008, cap + " Moment Design");
}
