#include "embedment/win32/ControlHost.h"

#include <oleauto.h>
#include <olectl.h>

#include <algorithm>
#include <vector>

#include "embedment/NTGraphTarnsway.h"

namespace {

constexpr const wchar_t* kGraphClass = L"{E8D6AFDF-90F4-4EC6-A30C-BF8F32B27EDC}";
constexpr DISPID kClickEvent = -600;
constexpr UINT kWesternCodePage = 1252;

// The members whose integers have 16 bits; all others have 32.
constexpr int kShortMembers[] = {kGraphTicksX, kGraphTicksY, kGraphElement, kGraphPlotPoint};

bool IsShort(int dispatchId) {
    return std::find(std::begin(kShortMembers), std::end(kShortMembers), dispatchId) !=
           std::end(kShortMembers);
}

// An argument of a call, which frees what it holds.
class Variant {
  public:
    Variant() { VariantInit(&m_value); }
    Variant(int dispatchId, const GraphValue& value) : Variant() {
        if (const bool* truth = std::get_if<bool>(&value)) {
            V_VT(&m_value) = VT_BOOL;
            V_BOOL(&m_value) = *truth ? VARIANT_TRUE : VARIANT_FALSE;
        } else if (const int* integer = std::get_if<int>(&value)) {
            V_VT(&m_value) = IsShort(dispatchId) ? VT_I2 : VT_I4;
            if (IsShort(dispatchId)) {
                V_I2(&m_value) = static_cast<SHORT>(*integer);
            } else {
                V_I4(&m_value) = *integer;
            }
        } else if (const double* real = std::get_if<double>(&value)) {
            V_VT(&m_value) = VT_R8;
            V_R8(&m_value) = *real;
        } else if (const std::string* text = std::get_if<std::string>(&value)) {
            V_VT(&m_value) = VT_BSTR;
            V_BSTR(&m_value) = MakeText(*text);
        }
    }
    Variant(Variant&& other) noexcept : m_value(other.m_value) { VariantInit(&other.m_value); }
    Variant& operator=(Variant&&) = delete;
    ~Variant() { VariantClear(&m_value); }

    VARIANT& Value() { return m_value; }

  private:
    static BSTR MakeText(const std::string& text) {
        const int bytes = static_cast<int>(text.size());
        const int length = MultiByteToWideChar(kWesternCodePage, 0, text.data(), bytes, nullptr, 0);
        const BSTR wide = SysAllocStringLen(nullptr, static_cast<UINT>(length));
        if (wide != nullptr) MultiByteToWideChar(kWesternCodePage, 0, text.data(), bytes, wide, length);
        return wide;
    }
    VARIANT m_value;
};

// The container of ActiveX controls that comes with the platform, loaded when it is first wanted.
struct ControlContainer {
    using Init = BOOL(WINAPI*)();
    using CreateControl = HRESULT(WINAPI*)(LPCOLESTR, HWND, IStream*, IUnknown**);
    using GetControl = HRESULT(WINAPI*)(HWND, IUnknown**);

    Init init = nullptr;
    CreateControl create = nullptr;
    GetControl get = nullptr;

    ControlContainer() {
        const HMODULE library = LoadLibraryA("atl.dll");
        if (library == nullptr) return;
        Find(library, "AtlAxWinInit", init);
        Find(library, "AtlAxCreateControl", create);
        Find(library, "AtlAxGetControl", get);
    }
    bool IsWhole() const { return init != nullptr && create != nullptr && get != nullptr; }

  private:
    template <class Function>
    static void Find(HMODULE library, const char* name, Function& function) {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    }
};

bool IsRegistered() {
    CLSID id{};
    if (FAILED(CLSIDFromString(kGraphClass, &id))) return false;
    IClassFactory* factory = nullptr;
    const HRESULT found = CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                                           reinterpret_cast<void**>(&factory));
    if (FAILED(found) || factory == nullptr) return false;
    factory->Release();
    return true;
}

}  // namespace

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"  // interfaces of the platform have no destructor

// Takes the control's events; only the click is of interest. It keeps itself as long as it is referred to.
class ControlHost::EventSink final : public IDispatch {
  public:
    EventSink(CNTGraphTarnsway& graph, const IID& events) : m_graph(&graph), m_events(events) {}
    // Comes with one reference.
    static EventSink* Make(CNTGraphTarnsway& graph, const IID& events) {
        const auto sink = std::make_shared<EventSink>(graph, events);
        sink->m_self = sink;
        return sink.get();
    }
    // The graph is going away; later events find nobody.
    void Forget() { m_graph = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (!IsEqualIID(id, IID_IUnknown) && !IsEqualIID(id, IID_IDispatch) && !IsEqualIID(id, m_events)) {
            return E_NOINTERFACE;
        }
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --m_references;
        std::shared_ptr<EventSink> last;
        if (left == 0) last.swap(m_self);
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count != nullptr) *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override {
        if (member == kClickEvent && m_graph != nullptr) m_graph->OnClicked();
        return S_OK;
    }

  private:
    CNTGraphTarnsway* m_graph;
    IID m_events;
    ULONG m_references = 1;
    std::shared_ptr<EventSink> m_self;
};

#pragma GCC diagnostic pop

std::unique_ptr<ControlHost> ControlHost::Create(CNTGraphTarnsway& graph, HWND window) {
    static const ControlContainer container;
    if (!container.IsWhole() || !IsRegistered() || !container.init()) return nullptr;
    IUnknown* site = nullptr;
    if (FAILED(container.create(kGraphClass, window, nullptr, &site))) return nullptr;
    if (site != nullptr) site->Release();
    IUnknown* unknown = nullptr;
    if (FAILED(container.get(window, &unknown)) || unknown == nullptr) return nullptr;
    IDispatch* control = nullptr;
    const HRESULT result = unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&control));
    unknown->Release();
    if (FAILED(result) || control == nullptr) return nullptr;
    return std::make_unique<ControlHost>(control, graph);
}

ControlHost::ControlHost(IDispatch* control, CNTGraphTarnsway& graph) : m_control(control) {
    Advise(graph);
}

ControlHost::~ControlHost() {
    if (m_point != nullptr) {
        m_point->Unadvise(m_cookie);
        m_point->Release();
    }
    if (m_sink != nullptr) {
        m_sink->Forget();
        m_sink->Release();
    }
    m_control->Release();
}

// The control's default events; where it does not name them, the first events that are no notices of
// properties.
IConnectionPoint* ControlHost::FindEvents(IID& events) const {
    IConnectionPointContainer* points = nullptr;
    if (FAILED(m_control->QueryInterface(IID_IConnectionPointContainer, reinterpret_cast<void**>(&points)))) {
        return nullptr;
    }
    IConnectionPoint* point = nullptr;
    IProvideClassInfo2* info = nullptr;
    if (SUCCEEDED(m_control->QueryInterface(IID_IProvideClassInfo2, reinterpret_cast<void**>(&info)))) {
        if (SUCCEEDED(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events))) {
            points->FindConnectionPoint(events, &point);
        }
        info->Release();
    }
    IEnumConnectionPoints* all = nullptr;
    if (point == nullptr && SUCCEEDED(points->EnumConnectionPoints(&all))) {
        while (all->Next(1, &point, nullptr) == S_OK) {
            if (SUCCEEDED(point->GetConnectionInterface(&events)) &&
                !IsEqualIID(events, IID_IPropertyNotifySink)) {
                break;
            }
            point->Release();
            point = nullptr;
        }
        all->Release();
    }
    points->Release();
    return point;
}

void ControlHost::Advise(CNTGraphTarnsway& graph) {
    IID events{};
    m_point = FindEvents(events);
    if (m_point == nullptr) return;
    m_sink = EventSink::Make(graph, events);
    if (SUCCEEDED(m_point->Advise(m_sink, &m_cookie))) return;
    m_point->Release();
    m_point = nullptr;
}

void ControlHost::Set(int dispatchId, const GraphValue& value) {
    Variant argument(dispatchId, value);
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument.Value(), &named, 1, 1};
    m_control->Invoke(dispatchId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT, &parameters, nullptr,
                      nullptr, nullptr);
}

GraphValue ControlHost::Get(int dispatchId) const {
    DISPPARAMS parameters{};
    Variant result;
    if (FAILED(m_control->Invoke(dispatchId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &parameters,
                                 &result.Value(), nullptr, nullptr))) {
        return 0;
    }
    const bool real = V_VT(&result.Value()) == VT_R8 || V_VT(&result.Value()) == VT_R4;
    const VARTYPE wanted = real ? VT_R8 : VT_I4;
    if (FAILED(VariantChangeType(&result.Value(), &result.Value(), 0, wanted))) return 0;
    if (real) return V_R8(&result.Value());
    return static_cast<int>(V_I4(&result.Value()));
}

void ControlHost::Call(int dispatchId, std::span<const GraphValue> arguments) {
    // The last argument comes first.
    std::vector<Variant> owned;
    for (auto at = arguments.rbegin(); at != arguments.rend(); ++at) owned.emplace_back(dispatchId, *at);
    std::vector<VARIANT> values;
    for (Variant& argument : owned) values.push_back(argument.Value());
    DISPPARAMS parameters{values.empty() ? nullptr : values.data(), nullptr, static_cast<UINT>(values.size()),
                          0};
    m_control->Invoke(dispatchId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                      nullptr, nullptr);
}
