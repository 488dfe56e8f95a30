// SPDX-License-Identifier: MIT
#include "embedment/dialog/win32/ControlHost.h"

#include <oleauto.h>
#include <olectl.h>

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "embedment/dialog/NTGraphTarnsway.h"
#include "embedment/win32/GraphMessages.h"
#include "framework/win32/Failures.h"
#include "framework/win32/InstalledFiles.h"

namespace lumerin {

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

// An argument of a call; it frees its value.
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
        } else if (const std::string* text = std::get_if<GraphText>(&value)) {
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
        if (wide == nullptr) throw std::bad_alloc();
        MultiByteToWideChar(kWesternCodePage, 0, text.data(), bytes, wide, length);
        return wide;
    }
    VARIANT m_value{};
};

// The container of ActiveX controls that comes with the platform, loaded when it is first wanted. Its
// AtlAxWinInit is not called: it registers a window class that nothing here uses, and on Wine it fails the
// second time and leaves OLE initialised.
struct ControlContainer {
    using CreateControl = HRESULT(WINAPI*)(LPCOLESTR, HWND, IStream*, IUnknown**);
    using GetControl = HRESULT(WINAPI*)(HWND, IUnknown**);

    CreateControl create = nullptr;
    GetControl get = nullptr;

    ControlContainer() {
        const HMODULE library = win32::LoadSystemLibrary("atl.dll");
        if (library == nullptr) return;
        Find(library, "AtlAxCreateControl", create);
        Find(library, "AtlAxGetControl", get);
    }
    bool IsWhole() const { return create != nullptr && get != nullptr; }

  private:
    template <class Function>
    static void Find(HMODULE library, const char* name, Function& function) {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    }
};

// The object that a call of the platform gives out; null when it gives none.
template <class Interface, class Call>
ComPointer<Interface> Take(const Call& call) {
    void* object = nullptr;
    const HRESULT result = call(&object);
    return ComPointer<Interface>(FAILED(result) ? nullptr : static_cast<Interface*>(object));
}

template <class Interface>
ComPointer<Interface> Ask(IUnknown& object, const IID& id) {
    return Take<Interface>([&](void** answer) { return object.QueryInterface(id, answer); });
}

bool IsRegistered() {
    CLSID id{};
    if (FAILED(CLSIDFromString(kGraphClass, &id))) return false;
    const auto factory = Take<IClassFactory>([&](void** object) {
        return CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory, object);
    });
    return factory != nullptr;
}

}  // namespace

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"  // interfaces of the platform have no destructor

// Receives the control's events; only the click is used. It is deleted with its last reference.
class ControlHost::EventSink final : public IDispatch {
  public:
    // Has one reference at the start.
    EventSink(CNTGraphTarnsway& graph, const IID& events) : m_graph(&graph), m_events(events) {}
    virtual ~EventSink() = default;
    // The graph is being destroyed; later events are ignored.
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
        if (left == 0) std::unique_ptr<EventSink>(this).reset();
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
        const bool clicked = member == kClickEvent && m_graph != nullptr;
        win32::NoteMessage(clicked ? WM_LBUTTONDOWN : WM_NULL);
        return !clicked || win32::RunBorder([this] { m_graph->OnClicked(); }) ? S_OK : E_FAIL;
    }

  private:
    CNTGraphTarnsway* m_graph;
    IID m_events;
    ULONG m_references = 1;
};

#pragma GCC diagnostic pop

ControlWindow::ControlWindow(HWND place) : m_place(place) {
    RECT area{};
    GetClientRect(place, &area);
    m_window = CreateWindowExA(0, kGraphWindowClass, "", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                               area.right, area.bottom, place, nullptr, win32::ModuleInstance(), nullptr);
    if (m_window == nullptr) throw std::bad_alloc();
}

ControlWindow::~ControlWindow() {
    // When the dialog was destroyed first, this window is gone, and its handle may belong to another window.
    if (IsWindow(m_window) && GetParent(m_window) == m_place) DestroyWindow(m_window);
}

std::unique_ptr<ControlHost> ControlHost::Create(CNTGraphTarnsway& graph, HWND place) {
    static const ControlContainer container;
    if (!container.IsWhole() || !win32::UseOle() || !IsRegistered()) return nullptr;
    auto window = std::make_unique<ControlWindow>(place);
    IUnknown* site = nullptr;
    if (FAILED(container.create(kGraphClass, window->Get(), nullptr, &site))) return nullptr;
    const ComPointer<IUnknown> ownSite(site);
    IUnknown* object = nullptr;
    if (FAILED(container.get(window->Get(), &object)) || object == nullptr) return nullptr;
    const ComPointer<IUnknown> unknown(object);
    ComPointer<IDispatch> control = Ask<IDispatch>(*unknown, IID_IDispatch);
    // Without it nothing could be drawn: the control is destroyed with its window, and the plot takes its
    // place.
    if (control == nullptr) return nullptr;
    return std::make_unique<ControlHost>(std::move(window), std::move(control), graph);
}

ControlHost::ControlHost(std::unique_ptr<ControlWindow> window, ComPointer<IDispatch> control,
                         CNTGraphTarnsway& graph)
    : m_window(std::move(window)), m_control(std::move(control)) {
    Advise(graph);
}

ControlHost::~ControlHost() {
    if (m_point != nullptr) m_point->Unadvise(m_cookie);
    if (m_sink != nullptr) m_sink->Forget();
}

// The control's default events; where it does not name them, the first events that are no notices of
// properties.
ComPointer<IConnectionPoint> ControlHost::FindEvents(IID& events) const {
    const auto points = Ask<IConnectionPointContainer>(*m_control, IID_IConnectionPointContainer);
    if (points == nullptr) return nullptr;
    const auto info = Ask<IProvideClassInfo2>(*m_control, IID_IProvideClassInfo2);
    if (info != nullptr && SUCCEEDED(info->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events))) {
        IConnectionPoint* point = nullptr;
        if (SUCCEEDED(points->FindConnectionPoint(events, &point)) && point != nullptr) {
            return ComPointer<IConnectionPoint>(point);
        }
    }
    IEnumConnectionPoints* list = nullptr;
    if (FAILED(points->EnumConnectionPoints(&list)) || list == nullptr) return nullptr;
    const ComPointer<IEnumConnectionPoints> all(list);
    IConnectionPoint* next = nullptr;
    while (all->Next(1, &next, nullptr) == S_OK) {
        ComPointer<IConnectionPoint> point(next);
        if (SUCCEEDED(point->GetConnectionInterface(&events)) &&
            !IsEqualIID(events, IID_IPropertyNotifySink)) {
            return point;
        }
    }
    return nullptr;
}

void ControlHost::Advise(CNTGraphTarnsway& graph) {
    IID events{};
    ComPointer<IConnectionPoint> point = FindEvents(events);
    if (point == nullptr) return;
    m_sink.reset(std::make_unique<EventSink>(graph, events).release());
    if (SUCCEEDED(point->Advise(m_sink.get(), &m_cookie))) m_point = std::move(point);
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
    values.reserve(owned.size());
    for (Variant& argument : owned) values.push_back(argument.Value());
    DISPPARAMS parameters{values.empty() ? nullptr : values.data(), nullptr, static_cast<UINT>(values.size()),
                          0};
    m_control->Invoke(dispatchId, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr,
                      nullptr, nullptr);
}

}  // namespace lumerin
