#include <array>
#include <functional>

#include "Library.h"

namespace mavCycEd::test {
namespace {

/// A listener that remembers.
class Listener : public IDispatch {
 public:
  virtual ~Listener() = default;
  STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++references; }
  STDMETHODIMP_(ULONG) Release() override { return --references; }
  STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    ++events;
    EXPECT_EQ(member, 1);
    EXPECT_EQ(arguments->cArgs, 6U);
    const VARIANTARG* const a = arguments->rgvarg;
    EXPECT_EQ(a[5].vt, VT_I4);
    number = a[5].lVal;
    text = a[4].bstrVal;
    application = a[3].bstrVal;
    module = a[2].bstrVal;
    procedure = a[1].bstrVal;
    EXPECT_EQ(a[0].vt, VT_I2);
    if (answer) answer();
    return result;
  }

  ULONG references = 1;
  int events = 0;
  LONG number = 0;
  std::wstring text, application, module, procedure;
  HRESULT result = S_OK;
  std::function<void()> answer;
};

class EventsTest : public ComTest {
 protected:
  ComPtr<IConnectionPoint> point() {
    ComPtr<IConnectionPoint> found;
    EXPECT_EQ(control_.as<IConnectionPointContainer>()->FindConnectionPoint(DIID___ctlCycEd, found.put()), S_OK);
    return found;
  }
  DWORD listen(Listener& listener) {
    DWORD cookie = 0;
    EXPECT_EQ(point()->Advise(&listener, &cookie), S_OK);
    return cookie;
  }
  void fail() { control_.as<_ctlCycEd>()->SetXMLStrings(nullptr, nullptr); }

  Listener first_;
  Listener second_;
  ComPtr<IUnknown> control_ = library_.control();
};

TEST_F(EventsTest, AFailureIsToldWithAllItsArguments) {
  listen(first_);
  fail();
  EXPECT_EQ(first_.events, 1);
  EXPECT_EQ(first_.number, mavCycEdErrorInvalidXML);
  EXPECT_EQ(first_.text, L"The 'latest_kam.xml' is empty or doesn't exist!");
  EXPECT_EQ(first_.application, L"mavCycEdVersion: " MAVCYCED_TEST_VERSION);
  EXPECT_EQ(first_.module, L"ctlCycEd");
  EXPECT_EQ(first_.procedure, L"SetXMLStrings ");
}

TEST_F(EventsTest, EveryListenerIsToldUntilItGoes) {
  const DWORD firstCookie = listen(first_);
  listen(second_);
  first_.result = E_FAIL;
  fail();
  EXPECT_EQ(point()->Unadvise(firstCookie), S_OK);
  EXPECT_EQ(point()->Unadvise(firstCookie), CONNECT_E_NOCONNECTION);
  fail();
  EXPECT_EQ(first_.events, 1);
  EXPECT_EQ(second_.events, 2);
  EXPECT_EQ(first_.references, 1U);
}

TEST_F(EventsTest, AListenerMayGoInAnswer) {
  const DWORD cookie = listen(first_);
  first_.answer = [&] { point()->Unadvise(cookie); };
  fail();
  fail();
  EXPECT_EQ(first_.events, 1);
}

TEST_F(EventsTest, TheControlMayGoInAnswer) {
  const ComPtr<_ctlCycEd> editor = control_.as<_ctlCycEd>();
  listen(first_);
  _ctlCycEd* const last = editor.get();
  last->AddRef();
  first_.answer = [&] { last->Release(); };
  // `editor` and control_ go first, so that the listener has the last reference.
  const_cast<ComPtr<_ctlCycEd>&>(editor) = {};
  control_ = {};
  EXPECT_EQ(last->SetXMLStrings(nullptr, nullptr), S_OK);
  EXPECT_EQ(first_.events, 1);
  EXPECT_EQ(library_.canUnload(), S_OK);
}

TEST_F(EventsTest, FrozenEventsComeLater) {
  listen(first_);
  const auto control = control_.as<IOleControl>();
  control->FreezeEvents(TRUE);
  control->FreezeEvents(TRUE);
  fail();
  fail();
  control->FreezeEvents(FALSE);
  EXPECT_EQ(first_.events, 0);
  control->FreezeEvents(FALSE);
  EXPECT_EQ(first_.events, 2);
}

TEST_F(EventsTest, PointsAndConnectionsAreListed) {
  listen(first_);
  listen(second_);
  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(control_.as<IConnectionPointContainer>()->EnumConnectionPoints(points.put()), S_OK);
  ComPtr<IConnectionPoint> found;
  ULONG fetched = 0;
  ASSERT_EQ(points->Next(1, found.put(), &fetched), S_OK);
  EXPECT_EQ(fetched, 1U);
  IID iid{};
  EXPECT_EQ(found->GetConnectionInterface(&iid), S_OK);
  EXPECT_EQ(iid, DIID___ctlCycEd);
  ComPtr<IConnectionPointContainer> container;
  EXPECT_EQ(found->GetConnectionPointContainer(container.put()), S_OK);
  EXPECT_EQ(container.as<IUnknown>().get(), control_.get());
  ComPtr<IConnectionPoint> none;
  EXPECT_EQ(points->Next(1, none.put(), &fetched), S_FALSE);
  EXPECT_EQ(points->Reset(), S_OK);
  EXPECT_EQ(points->Skip(2), S_FALSE);

  ComPtr<IEnumConnections> connections;
  ASSERT_EQ(found->EnumConnections(connections.put()), S_OK);
  ComPtr<IEnumConnections> copy;
  ASSERT_EQ(connections->Clone(copy.put()), S_OK);
  std::array<CONNECTDATA, 3> data{};
  EXPECT_EQ(copy->Next(3, data.data(), &fetched), S_FALSE);
  ASSERT_EQ(fetched, 2U);
  for (ULONG i = 0; i < fetched; ++i) data[i].pUnk->Release();
  EXPECT_EQ(connections->Next(1, nullptr, &fetched), E_POINTER);
}

TEST_F(EventsTest, BadListenersAreRefused) {
  DWORD cookie = 0;
  EXPECT_EQ(point()->Advise(nullptr, &cookie), E_POINTER);
  EXPECT_EQ(point()->Advise(&first_, nullptr), E_POINTER);
  EXPECT_EQ(first_.references, 1U);
  ComPtr<IConnectionPoint> none;
  EXPECT_EQ(control_.as<IConnectionPointContainer>()->FindConnectionPoint(IID_IDispatch, none.put()),
            CONNECT_E_NOCONNECTION);
}

}  // namespace
}  // namespace mavCycEd::test
