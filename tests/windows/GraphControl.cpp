// SPDX-License-Identifier: MIT
// A graph control for the tests: it records each property and method that is called, with the types of the
// values, and reports one click. It draws nothing.
//     LUMERIN_GRAPH_RECORD  the file of the record
//     LUMERIN_GRAPH_CLICK   the x of the click, some time after the first point; unset: none
//     LUMERIN_GRAPH_MUTE    set: it has no dispatch interface, and covers its place with a black window

#include <windows.h>

#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>
#include <oleidl.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>
#include <string>
#include <utility>

#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"  // interfaces of the platform have no destructors

namespace {

constexpr CLSID kClass = {0xE8D6AFDF, 0x90F4, 0x4EC6, {0xA3, 0x0C, 0xBF, 0x8F, 0x32, 0xB2, 0x7E, 0xDC}};
constexpr IID kEvents = {0x3c1f7a52, 0x6d0e, 0x4b1b, {0x8f, 0x21, 0x5b, 0x0d, 0x77, 0x1a, 0x90, 0x02}};
constexpr DISPID kCountOfElements = 51, kAddElement = 57, kClearElements = 59, kPlotPoint = 60,
                 kClickedX = 34;
constexpr DISPID kClick = -600;
constexpr UINT kClickDelay = 50;

void Record(const std::string& line) {
    const char* path = std::getenv("LUMERIN_GRAPH_RECORD");
    if (path == nullptr) return;
    if (std::FILE* file = std::fopen(path, "ab")) {
        std::fprintf(file, "%s\n", line.c_str());
        std::fclose(file);
    }
}

bool IsMute() {
    return std::getenv("LUMERIN_GRAPH_MUTE") != nullptr;
}

std::string TextOf(const VARIANT& value) {
    char buffer[64];
    switch (V_VT(&value)) {
        case VT_I2:
            std::snprintf(buffer, sizeof buffer, " I2:%d", V_I2(&value));
            return buffer;
        case VT_I4:
            std::snprintf(buffer, sizeof buffer, " I4:%ld", static_cast<long>(V_I4(&value)));
            return buffer;
        case VT_R8:
            std::snprintf(buffer, sizeof buffer, " R8:%.10g", V_R8(&value));
            return buffer;
        case VT_BOOL:
            return V_BOOL(&value) == VARIANT_TRUE ? " BOOL:true" : " BOOL:false";
        case VT_BSTR: {
            std::string text = " BSTR:";
            for (UINT i = 0; i < SysStringLen(V_BSTR(&value)); ++i)
                text += static_cast<char>(V_BSTR(&value)[i]);
            return text;
        }
        default:
            std::snprintf(buffer, sizeof buffer, " type%d", V_VT(&value));
            return buffer;
    }
}

// One object with all its interfaces. The tests create one at a time; it exists as long as the module.
class GraphControl final : public IDispatch,
                           public IConnectionPointContainer,
                           public IConnectionPoint,
                           public IOleObject {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        if (IsEqualIID(id, IID_IUnknown) || (IsEqualIID(id, IID_IDispatch) && !IsMute())) {
            *object = static_cast<IDispatch*>(this);
        } else if (IsEqualIID(id, IID_IConnectionPointContainer)) {
            *object = static_cast<IConnectionPointContainer*>(this);
        } else if (IsEqualIID(id, IID_IConnectionPoint)) {
            *object = static_cast<IConnectionPoint*>(this);
        } else if (IsEqualIID(id, IID_IOleObject)) {
            *object = static_cast<IOleObject*>(this);
        } else {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD how, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO*, UINT*) override {
        std::string line = how == DISPATCH_METHOD ? "call " : how == DISPATCH_PROPERTYPUT ? "put " : "get ";
        line += std::to_string(member);
        // The last argument comes first.
        for (UINT i = arguments->cArgs; i-- > 0;) line += TextOf(arguments->rgvarg[i]);
        Record(line);
        if (member == kClearElements) m_elements = 0;
        if (member == kAddElement) ++m_elements;
        if (member == kPlotPoint) StartClick();
        if (result != nullptr && member == kCountOfElements) {
            V_VT(result) = VT_I2;
            V_I2(result) = m_elements;
        }
        if (result != nullptr && member == kClickedX) {
            V_VT(result) = VT_R8;
            V_R8(result) = std::strtod(std::getenv("LUMERIN_GRAPH_CLICK"), nullptr);
        }
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** all) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID id, IConnectionPoint** point) override {
        *point = IsEqualIID(id, kEvents) ? this : nullptr;
        return *point != nullptr ? S_OK : CONNECT_E_NOCONNECTION;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* id) override {
        *id = kEvents;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override {
        *container = this;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override {
        *cookie = 1;
        Record("advise");
        return sink->QueryInterface(kEvents, reinterpret_cast<void**>(&m_sink));
    }
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD) override {
        Record("unadvise");
        if (m_sink != nullptr) m_sink->Release();
        m_sink = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) override { return E_NOTIMPL; }

    // What a container calls before it shows a control. There is nothing to show.
    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override {
        Record(site != nullptr ? "sited" : "unsited");
        // This reference keeps the site.
        if (site != nullptr) site->AddRef();
        if (m_site != nullptr) m_site->Release();
        m_site = site;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Close(DWORD) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD, IDataObject**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DoVerb(LONG, LPMSG, IOleClientSite*, LONG, HWND place, LPCRECT) override {
        if (IsMute()) {
            CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE | SS_BLACKRECT, 0, 0, 4000, 4000, place,
                            nullptr, nullptr, nullptr);
            Record("covered");
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) override {
        *id = kClass;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD, LPOLESTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD, SIZEL*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD, SIZEL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD, DWORD* status) override {
        *status = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

    void Click() {
        DISPPARAMS none{};
        if (m_sink != nullptr) {
            m_sink->Invoke(kClick, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr,
                           nullptr);
        }
    }

  private:
    void StartClick();
    SHORT m_elements = 0;
    bool m_clicked = false;
    IDispatch* m_sink = nullptr;
    IOleClientSite* m_site = nullptr;
};

GraphControl g_control;

// The one connection point.
class Points final : public IEnumConnectionPoints {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE Next(ULONG, LPCONNECTIONPOINT* point, ULONG*) override {
        if (std::exchange(m_reported, true)) return S_FALSE;
        *point = &g_control;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reset() override {
        m_reported = false;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints**) override { return E_NOTIMPL; }

  private:
    bool m_reported = false;
};

Points g_points;

HRESULT STDMETHODCALLTYPE GraphControl::EnumConnectionPoints(IEnumConnectionPoints** all) {
    g_points.Reset();
    *all = &g_points;
    return S_OK;
}

void CALLBACK OnClickTimer(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    g_control.Click();
}

void GraphControl::StartClick() {
    if (std::exchange(m_clicked, true) || std::getenv("LUMERIN_GRAPH_CLICK") == nullptr) return;
    SetTimer(nullptr, 0, kClickDelay, OnClickTimer);
}

class Factory final : public IClassFactory {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IClassFactory);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        return g_control.QueryInterface(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

Factory g_factory;

}  // namespace

extern "C" HRESULT STDAPICALLTYPE GraphGetClassObject(REFCLSID id, REFIID interfaceId, void** object) {
    return IsEqualCLSID(id, kClass) ? g_factory.QueryInterface(interfaceId, object)
                                    : CLASS_E_CLASSNOTAVAILABLE;
}

extern "C" HRESULT STDAPICALLTYPE GraphCanUnloadNow() {
    return S_FALSE;
}
