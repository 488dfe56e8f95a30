// SPDX-License-Identifier: MIT
// The clipboard as OLE has it: a data object that offers one text.
#include "framework/win32/Windows32.h"
// This header needs windows.h before it.
#include <ole2.h>

#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <string_view>

#include "framework/win32/Failures.h"
#include "grid/win32/GridWindow.h"

namespace lumerin {

namespace {

FORMATETC PlainText() {
    return {CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

bool OffersFormat(const FORMATETC& wanted) {
    return wanted.cfFormat == CF_TEXT && (wanted.tymed & TYMED_HGLOBAL) != 0 &&
           wanted.dwAspect == DVASPECT_CONTENT;
}

HGLOBAL GlobalText(const std::string& text) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (memory == nullptr) return nullptr;
    if (void* bytes = GlobalLock(memory)) {
        std::memcpy(bytes, text.c_str(), text.size() + 1);
        GlobalUnlock(memory);
    }
    return memory;
}

// The platform's interfaces have no virtual destructor: objects go by Release alone.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// An object that counts its own references, as OLE requires, and is deleted with the last one.
template <class Interface, const IID& interfaceId>
class Counted : public Interface {
  public:
    virtual ~Counted() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (IsEqualIID(id, IID_IUnknown) == FALSE && IsEqualIID(id, interfaceId) == FALSE) {
            return E_NOINTERFACE;
        }
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        if (left == 0) std::unique_ptr<Counted>(this).reset();
        return left;
    }

  private:
    ULONG m_references = 1;
};

// The list of the one format. The shell offers such a list, but Wine's is never freed: it starts with one
// reference too many.
class FormatList final : public Counted<IEnumFORMATETC, IID_IEnumFORMATETC> {
  public:
    explicit FormatList(bool passed) : m_passed(passed) {}

    static HRESULT Give(bool passed, IEnumFORMATETC** list) {
        if (list == nullptr) return E_POINTER;
        *list = nullptr;
        return win32::RunMethod([&] { *list = std::make_unique<FormatList>(passed).release(); });
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, FORMATETC* formats, ULONG* given) override {
        if (formats == nullptr || (given == nullptr && wanted != 1)) return E_POINTER;
        const ULONG count = m_passed || wanted == 0 ? 0 : 1;
        if (count == 1) *formats = PlainText();
        m_passed = m_passed || count == 1;
        if (given != nullptr) *given = count;
        return count == wanted ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        const bool within = count == 0 || (count == 1 && !m_passed);
        m_passed = m_passed || count > 0;
        return within ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        m_passed = false;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumFORMATETC** list) override { return Give(m_passed, list); }

  private:
    bool m_passed;
};

class TextObject final : public Counted<IDataObject, IID_IDataObject> {
  public:
    explicit TextObject(std::string text) : m_text(std::move(text)) {}

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (format == nullptr || medium == nullptr) return E_POINTER;
        if (!OffersFormat(*format)) return DV_E_FORMATETC;
        *medium = STGMEDIUM{};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = GlobalText(m_text);
        return medium->hGlobal != nullptr ? S_OK : E_OUTOFMEMORY;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override {
        return format != nullptr && OffersFormat(*format) ? S_OK : DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
        if (direction != DATADIR_GET) return E_NOTIMPL;
        return FormatList::Give(false, formats);
    }
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return DV_E_FORMATETC; }
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override {
        if (out != nullptr) out->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

  private:
    std::string m_text;
};

#pragma GCC diagnostic pop

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};

// That the clipboard is another program's at the moment, or holds no text, is no failure; that memory is out
// is one.
void ThrowIfMemoryIsOut(HRESULT result) {
    if (result == E_OUTOFMEMORY || result == STG_E_MEDIUMFULL) throw std::bad_alloc();
}

// Owns what a data object returned, which may be as large as the clipboard, and releases it.
class Medium {
  public:
    Medium() = default;
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;
    ~Medium() {
        if (m_bytes != nullptr) GlobalUnlock(m_medium.hGlobal);
        if (m_medium.tymed != TYMED_NULL) ReleaseStgMedium(&m_medium);
    }
    // Empty where the object has no text. The view ends with this object.
    std::string_view Read(IDataObject& object) {
        FORMATETC format = PlainText();
        const HRESULT result = object.GetData(&format, &m_medium);
        if (FAILED(result)) {
            m_medium = {};
            ThrowIfMemoryIsOut(result);
            return {};
        }
        if (m_medium.tymed != TYMED_HGLOBAL) return {};
        m_bytes = static_cast<const char*>(GlobalLock(m_medium.hGlobal));
        if (m_bytes == nullptr) return {};
        return {m_bytes, strnlen(m_bytes, GlobalSize(m_medium.hGlobal))};
    }

  private:
    STGMEDIUM m_medium{};
    const char* m_bytes = nullptr;
};

}  // namespace

namespace win32 {

void PutClipboardText(const std::string& text) {
    const std::unique_ptr<TextObject, Releaser> object(std::make_unique<TextObject>(text).release());
    HRESULT result = OleSetClipboard(object.get());
    // The flush leaves the text on the clipboard when this module is gone.
    if (SUCCEEDED(result)) result = OleFlushClipboard();
    ThrowIfMemoryIsOut(result);
}

std::string ClipboardText() {
    IDataObject* got = nullptr;
    ThrowIfMemoryIsOut(OleGetClipboard(&got));
    if (got == nullptr) return {};
    const std::unique_ptr<IDataObject, Releaser> object(got);
    Medium medium;
    return std::string(medium.Read(*object));
}

}  // namespace win32

}  // namespace lumerin
