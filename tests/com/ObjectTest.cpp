#include <array>

#include "Library.h"

namespace mavCycEd::test {
namespace {

using ObjectTest = ComTest;

// What a caller sees of the references.
ULONG referencesOf(IUnknown* object) {
  object->AddRef();
  return object->Release();
}

TEST_F(ObjectTest, HasOneIdentityBehindAllItsInterfaces) {
  const ComPtr<IUnknown> control = library_.control();
  const std::array<const IID*, 17> interfaces{&IID__ctlCycEd,
                                              &IID_IDispatch,
                                              &IID_IProvideClassInfo,
                                              &IID_IProvideClassInfo2,
                                              &IID_ISupportErrorInfo,
                                              &IID_IObjectSafety,
                                              &IID_IConnectionPointContainer,
                                              &IID_IOleObject,
                                              &IID_IOleControl,
                                              &IID_IOleWindow,
                                              &IID_IOleInPlaceObject,
                                              &IID_IOleInPlaceActiveObject,
                                              &IID_IViewObject,
                                              &IID_IViewObject2,
                                              &IID_IViewObjectEx,
                                              &IID_IPersistStreamInit,
                                              &IID_IPersistPropertyBag};
  for (const IID* const iid : interfaces) {
    ComPtr<IUnknown> part;
    ASSERT_EQ(control->QueryInterface(*iid, part.putVoid()), S_OK);
    ComPtr<IUnknown> identity;
    ASSERT_EQ(part->QueryInterface(IID_IUnknown, identity.putVoid()), S_OK);
    EXPECT_EQ(identity.get(), control.get());
    ComPtr<IUnknown> back;
    EXPECT_EQ(part->QueryInterface(*iid, back.putVoid()), S_OK);
    EXPECT_EQ(back.get(), part.get());
  }
  EXPECT_EQ(referencesOf(control.get()), 1U);
}

TEST_F(ObjectTest, RefusesWhatItHasNotAndPointersThatLeadNowhere) {
  const ComPtr<IUnknown> control = library_.control();
  auto none = reinterpret_cast<void*>(1);
  EXPECT_EQ(control->QueryInterface(IID_IStorage, &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
  EXPECT_EQ(control->QueryInterface(IID_IDispatch, nullptr), E_POINTER);
  EXPECT_EQ(control->QueryInterface(IID_IDispatch, nowhere<void*>()), E_POINTER);
}

TEST_F(ObjectTest, ItsFactoryMakesControlsOnly) {
  const auto get = library_.function<HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject");
  ComPtr<IUnknown> object;
  EXPECT_EQ(get(IID_IUnknown, IID_IClassFactory, object.putVoid()), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(get(CLSID_ctlCycEd, IID_IStorage, object.putVoid()), E_NOINTERFACE);
  EXPECT_EQ(get(CLSID_ctlCycEd, IID_IClassFactory, nullptr), E_POINTER);
  EXPECT_EQ(library_.factory()->CreateInstance(nullptr, IID_IStorage, object.putVoid()), E_NOINTERFACE);
  EXPECT_EQ(library_.factory()->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ObjectTest, KeepsTheLibraryInMemory) {
  EXPECT_EQ(library_.canUnload(), S_OK);
  ComPtr<IUnknown> control = library_.control();
  EXPECT_EQ(library_.canUnload(), S_FALSE);
  control = {};
  EXPECT_EQ(library_.canUnload(), S_OK);
  library_.factory()->LockServer(TRUE);
  EXPECT_EQ(library_.canUnload(), S_FALSE);
  library_.factory()->LockServer(FALSE);
}

// An object that gives the control out as its own.
class Outer : public IUnknown {
 public:
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    if (iid != IID_IUnknown) return inner->QueryInterface(iid, object);
    *object = this;
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }

  ULONG references = 1;
  ComPtr<IUnknown> inner;
};

TEST_F(ObjectTest, CanBePartOfAnotherObject) {
  Outer outer;
  ComPtr<IDispatch> refused;
  EXPECT_EQ(library_.factory()->CreateInstance(&outer, IID_IDispatch, refused.putVoid()), CLASS_E_NOAGGREGATION);
  ASSERT_EQ(library_.factory()->CreateInstance(&outer, IID_IUnknown, outer.inner.putVoid()), S_OK);
  {
    const ComPtr<_ctlCycEd> editor = outer.inner.as<_ctlCycEd>();
    EXPECT_EQ(editor.as<IUnknown>().get(), &outer);
    EXPECT_EQ(editor->SetXMLStrings(Text(catalogue), Text(macroText)), S_OK);
    EXPECT_EQ(outer.references, 2U);
  }
  EXPECT_EQ(outer.references, 1U);
  outer.inner = {};
}

TEST_F(ObjectTest, NamesItsClassAndItsEvents) {
  const auto facts = library_.control<IProvideClassInfo2>();
  GUID events{};
  EXPECT_EQ(facts->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_EQ(events, DIID___ctlCycEd);
  EXPECT_EQ(facts->GetGUID(77, &events), E_INVALIDARG);
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(facts->GetClassInfo(info.put()), S_OK);
  BSTR name = nullptr;
  EXPECT_EQ(info->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr), S_OK);
  EXPECT_STREQ(name, L"ctlCycEd");
  SysFreeString(name);
}

TEST_F(ObjectTest, IsSafeForStrangers) {
  ComPtr<IObjectSafety> safety;
  ASSERT_EQ(library_.control()->QueryInterface(IID_IObjectSafety, safety.putVoid()), S_OK);
  DWORD supported = 0;
  DWORD enabled = 0;
  constexpr DWORD both = INTERFACESAFE_FOR_UNTRUSTED_CALLER | INTERFACESAFE_FOR_UNTRUSTED_DATA;
  EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IDispatch, both, INTERFACESAFE_FOR_UNTRUSTED_CALLER), S_OK);
  EXPECT_EQ(safety->GetInterfaceSafetyOptions(IID_IDispatch, &supported, &enabled), S_OK);
  EXPECT_EQ(supported, both);
  EXPECT_EQ(enabled, static_cast<DWORD>(INTERFACESAFE_FOR_UNTRUSTED_CALLER));
  EXPECT_EQ(safety->SetInterfaceSafetyOptions(IID_IDispatch, 0x100, 0x100), E_FAIL);
  EXPECT_EQ(safety->GetInterfaceSafetyOptions(IID_IStorage, &supported, &enabled), E_NOINTERFACE);
}

TEST_F(ObjectTest, ItsFileHasItsVersionAndItsLooks) {
  const HMODULE module = GetModuleHandleW(L"mavCycEd.dll");
  std::array<wchar_t, MAX_PATH> file{};
  GetModuleFileNameW(module, file.data(), MAX_PATH);
  std::vector<char> version(GetFileVersionInfoSizeW(file.data(), nullptr));
  ASSERT_FALSE(version.empty());
  ASSERT_NE(GetFileVersionInfoW(file.data(), 0, static_cast<DWORD>(version.size()), version.data()), FALSE);
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT size = 0;
  ASSERT_NE(VerQueryValueW(version.data(), L"\\", reinterpret_cast<void**>(&fixed), &size), FALSE);
  EXPECT_EQ(std::to_string(HIWORD(fixed->dwFileVersionMS)) + "." + std::to_string(LOWORD(fixed->dwFileVersionMS)) +
                "." + std::to_string(HIWORD(fixed->dwFileVersionLS)),
            MAVCYCED_TEST_VERSION);
  constexpr int manifestOfALibrary = 2;
  EXPECT_NE(FindResourceW(module, MAKEINTRESOURCEW(manifestOfALibrary), RT_MANIFEST), nullptr);
  const HBITMAP toolbox = LoadBitmapW(module, MAKEINTRESOURCEW(1));
  EXPECT_NE(toolbox, nullptr);
  DeleteObject(toolbox);
}

TEST_F(ObjectTest, StoresItsSizeAndNothingElse) {
  const ComPtr<IUnknown> control = library_.control();
  const auto persistence = control.as<IPersistStreamInit>();
  const auto object = control.as<IOleObject>();
  EXPECT_EQ(persistence->InitNew(), S_OK);
  EXPECT_EQ(persistence->IsDirty(), S_FALSE);
  SIZEL size{12345, 6789};
  EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, &size), S_OK);
  EXPECT_EQ(object->SetExtent(DVASPECT_ICON, &size), DV_E_DVASPECT);
  EXPECT_EQ(persistence->IsDirty(), S_OK);
  ComPtr<IStream> stream;
  ASSERT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.put()), S_OK);
  EXPECT_EQ(persistence->Save(stream.get(), TRUE), S_OK);
  EXPECT_EQ(persistence->IsDirty(), S_FALSE);

  const ComPtr<IUnknown> other = library_.control();
  EXPECT_EQ(other.as<IPersistStreamInit>()->Load(stream.get()), E_FAIL) << "the stream is at its end";
  stream->Seek({}, STREAM_SEEK_SET, nullptr);
  EXPECT_EQ(other.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
  SIZEL loaded{};
  EXPECT_EQ(other.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &loaded), S_OK);
  EXPECT_EQ(loaded.cx, 12345);
  EXPECT_EQ(loaded.cy, 6789);
  EXPECT_EQ(other.as<IPersistStreamInit>()->Load(nullptr), E_POINTER);
}

TEST_F(ObjectTest, DrawsABoardWhereItsWindowIsNot) {
  const HDC screen = GetDC(nullptr);
  const HDC context = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, 100, 50);
  const HGDIOBJ before = SelectObject(context, bitmap);
  const auto view = library_.control<IViewObjectEx>();
  const RECTL bounds{0, 0, 100, 50};
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, &bounds, nullptr, nullptr, 0), S_OK);
  EXPECT_EQ(GetPixel(context, 3, 3), GetSysColor(COLOR_BTNFACE));
  EXPECT_EQ(GetPixel(context, 0, 0), GetSysColor(COLOR_WINDOWFRAME));
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, context, nullptr, nullptr, nullptr, 0),
            E_POINTER);
  SelectObject(context, before);
  DeleteObject(bitmap);
  DeleteDC(context);
  ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace mavCycEd::test
