// SPDX-License-Identifier: MIT
// What a copy from a grid gives to the clipboard: an object that offers plain text, and nothing that it does
// not have.
#include <ole2.h>

#include <string>

#include "Imports.h"
#include "Stage.h"
#include "session/ReportControls.h"

namespace lumerin {

namespace {

constexpr int kClose = 1;
constexpr CLIPFORMAT kOtherFormats[] = {CF_BITMAP, CF_UNICODETEXT, CF_HDROP};

int g_copied = 0;

FORMATETC Format(CLIPFORMAT format, DWORD aspect, DWORD media) {
    return {format, nullptr, aspect, -1, media};
}

bool Offers(IDataObject& object, FORMATETC format) {
    const bool offers = object.QueryGetData(&format) == S_OK;
    STGMEDIUM medium{};
    const HRESULT got = object.GetData(&format, &medium);
    Check(SUCCEEDED(got) == offers, "a format that is offered can be had, another one can't");
    Check(offers || got == DV_E_FORMATETC, "a format that can't be had is the reason");
    if (SUCCEEDED(got)) ReleaseStgMedium(&medium);
    return offers;
}

void CheckFormats(IDataObject& object) {
    Check(Offers(object, Format(CF_TEXT, DVASPECT_CONTENT, TYMED_HGLOBAL)), "plain text is offered");
    Check(Offers(object, Format(CF_TEXT, DVASPECT_CONTENT, TYMED_FILE | TYMED_HGLOBAL)),
          "plain text is offered in memory or a file");
    Check(!Offers(object, Format(CF_TEXT, DVASPECT_CONTENT, TYMED_FILE)), "not in a file alone");
    Check(!Offers(object, Format(CF_TEXT, DVASPECT_ICON, TYMED_HGLOBAL)), "not as an icon");
    for (const CLIPFORMAT other : kOtherFormats) {
        Check(!Offers(object, Format(other, DVASPECT_CONTENT, TYMED_HGLOBAL)), "no other format is offered");
    }
    FORMATETC text = Format(CF_TEXT, DVASPECT_CONTENT, TYMED_HGLOBAL);
    Check(object.GetData(&text, nullptr) == E_POINTER, "data need a place to go to");
    STGMEDIUM medium{};
    Check(object.GetData(nullptr, &medium) == E_POINTER, "data have a format");
}

void CheckList(IDataObject& object) {
    IEnumFORMATETC* list = nullptr;
    Check(object.EnumFormatEtc(DATADIR_SET, &list) == E_NOTIMPL, "the object takes no data");
    if (object.EnumFormatEtc(DATADIR_GET, &list) != S_OK || list == nullptr) {
        Check(false, "the object lists its formats");
        return;
    }
    FORMATETC formats[2]{};
    ULONG given = 9;
    Check(list->Next(2, formats, &given) == S_FALSE && given == 1, "there is one format");
    Check(formats[0].cfFormat == CF_TEXT && formats[0].tymed == TYMED_HGLOBAL, "it is plain text");
    Check(list->Next(1, formats, &given) == S_FALSE && given == 0, "after it there is none");
    Check(list->Reset() == S_OK && list->Next(1, formats, nullptr) == S_OK, "the list can be read again");
    Check(list->Reset() == S_OK && list->Skip(1) == S_OK && list->Skip(1) == S_FALSE, "one can be skipped");
    list->Release();
}

// The object answers to its own interface and to the one that all have.
void CheckInterfaces(IDataObject& object) {
    for (const IID* id : {&IID_IUnknown, &IID_IDataObject}) {
        void* same = nullptr;
        Check(object.QueryInterface(*id, &same) == S_OK && same == &object, "it is a data object");
        if (same != nullptr) object.Release();
    }
    void* other = &object;
    Check(object.QueryInterface(IID_IStream, &other) == E_NOINTERFACE && other == nullptr, "it is no stream");
    Check(object.QueryInterface(IID_IUnknown, nullptr) == E_POINTER, "an interface needs a place to go to");
}

HRESULT WINAPI CheckedSetClipboard(IDataObject* object) {
    ++g_copied;
    if (object != nullptr) {
        CheckInterfaces(*object);
        CheckFormats(*object);
        CheckList(*object);
    }
    return OleSetClipboard(object);
}

}  // namespace

void TestCopiedText(const Words& words) {
    const Module module = LoadModule();
    Check(ReplaceImport(module.handle, "OleSetClipboard", &CheckedSetClipboard),
          "the module sets the clipboard by OLE");
    Visits visits([](HWND dialog) {
        if (const HWND grid = GetDlgItem(dialog, IDC_CASE_GRID)) {
            Key(grid, 'A', true);
            Key(grid, 'C', true);
            Cancel(dialog);
            return;
        }
        Press(dialog, IDC_CUSTOM_CASES);
        Press(dialog, IDC_CHOOSE_CASES);
        Press(dialog, kClose);
    });
    module.launch(2, words.at(0).c_str(), "4.17", "", "", "");
    Check(g_copied == 1, "a cell is copied once");
}

}  // namespace lumerin
