#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "TestWindow.h"
#include "mavCycEd/ctlCycEd.h"
#include "qt/QtTimer.h"

/// A host whose services fail, and which does to the widget in the middle of things what it should not.
namespace mavCycEd::test {

using Mischief = std::function<void()>;

inline void doIfAny(const Mischief& mischief) {
  if (const Mischief copy = mischief) copy();
}

class SpoiltProvider : public AtomListProvider {
 public:
  void setIgnoreHidden(bool) override {}
  std::vector<std::string> furtherAtomNames() override { return {}; }
  UnitOfMeasure lookUpUnit(std::string_view unitName) override {
    const std::string name(unitName);
    doIfAny(atUnit);
    return {name, 1};
  }
  bool isObjectHidden(const platform::XmlNode&) override { return false; }
  std::string furtherParameters(std::string_view) override { return {}; }
  Mischief atUnit;
};

class SpoiltMessages : public platform::MessageBox {
 public:
  int messageBox(platform::WindowHandle, std::string_view, std::string_view, int) override {
    ++shown;
    doIfAny(atMessage);
    return platform::OkButton;
  }
  int shown = 0;
  Mischief atMessage;
};

class SpoiltTimer : public qt::QtTimer {
 public:
  SpoiltTimer() : QtTimer("spoilt") {}
  void setEnabled(bool enabled) override {
    doIfAny(atSetting);
    QtTimer::setEnabled(enabled);
  }
  Mischief atSetting;
};

[[noreturn]] inline void fail() { throw std::runtime_error("spoilt"); }

inline const QString catalogue = QStringLiteral(R"(<LATESTKAM><ATOMS>
  <ATOM><AtomName>Mix</AtomName><Param>Volume;1;100;1;1;ul</Param><Param>Speed;1;100;50;1;None</Param></ATOM>
  <ATOM><AtomName>Home</AtomName></ATOM>
</ATOMS></LATESTKAM>)");
inline const QString cycle =
    QStringLiteral(R"(<CYCLE><VARIABLES><VALUE>Vol ();1;0;9</VALUE></VARIABLES><ATOMSEQUENCE><ATOMS>
  <ATOM><ATOMNAME>Mix</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume</PARAMNAME><PARAMVALUE>5</PARAMVALUE></PARAMETER>
  <PARAMETER><PARAMNAME>Speed</PARAMNAME><PARAMVALUE>Vol</PARAMVALUE></PARAMETER></PARAMETERS></ATOM>
  <ATOM><ATOMNAME>Mix</ATOMNAME><PARAMETERS><PARAMETER><PARAMNAME>Volume</PARAMNAME><PARAMVALUE>6</PARAMVALUE></PARAMETER>
  <PARAMETER><PARAMNAME>Speed</PARAMNAME><PARAMVALUE>7</PARAMVALUE></PARAMETER></PARAMETERS></ATOM>
</ATOMS></ATOMSEQUENCE><VERSION>03</VERSION></CYCLE>)");

enum class Boxes { OurOwn, Spoilt };

class MistakenHost {
 public:
  explicit MistakenHost(Boxes boxes = Boxes::Spoilt) {
    HostServices services{.provider = provider, .gridTimer = timer};
    if (boxes == Boxes::Spoilt) services.messageBox = messages;
    auto* const layout = new QVBoxLayout(window);
    control = new ctlCycEd(services);
    layout->addWidget(control);
    window->resize(900, 600);
    QObject::connect(control, &ctlCycEd::CycleEditorError, control, [this] {
      ++errors;
      doIfAny(atError);
    });
    showActive(*window);
    load();
  }
  ~MistakenHost() {
    delete window;
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  MistakenHost(const MistakenHost&) = delete;
  MistakenHost& operator=(const MistakenHost&) = delete;

  void load() const { control->SetXMLStrings(catalogue, cycle); }
  void callEveryOtherMember() const {
    control->SetConfigXML(QStringLiteral("<Config/>"));
    control->setIgnore_Hidden(true);
    control->CycleChanged();
    control->RetrieveCycle();
    control->MacroString();
    QString message;
    control->ParamValueControl(message);
    control->setResetCycle(QStringLiteral("<CYCLE/>"));
  }

  template <typename Widget = QWidget>
  Widget& widget(const char* name) const {
    auto* const found = control->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
  }
  void press(const char* button) const { QTest::mouseClick(&widget<QPushButton>(button), Qt::LeftButton); }
  QPoint placeOf(const char* list, int row, int column = 0) const {
    auto& view = widget<QAbstractItemView>(list);
    return view.visualRect(view.model()->index(row, column)).center();
  }
  void click(const char* list, int row, int column = 0) const {
    QTest::mouseClick(widget<QAbstractItemView>(list).viewport(), Qt::LeftButton, {}, placeOf(list, row, column));
  }
  void doubleClick(const char* list, int row) const {
    QTest::mouseDClick(widget<QAbstractItemView>(list).viewport(), Qt::LeftButton, {}, placeOf(list, row));
  }
  void type(int row, const char* text) const {
    click("GrdAtom", row, 1);
    // To where the focus is by then: the editor may have been closed.
    for (; *text != '\0' && QApplication::focusWidget() != nullptr; ++text) {
      QTest::keyClick(QApplication::focusWidget(), *text);
    }
  }
  int lines() const { return widget<QAbstractItemView>("lstAtomSequence").model()->rowCount(); }
  void key(Qt::Key key) const {
    if (QApplication::focusWidget() != nullptr) QTest::keyClick(QApplication::focusWidget(), key);
  }

  std::shared_ptr<SpoiltProvider> provider = std::make_shared<SpoiltProvider>();
  std::shared_ptr<SpoiltMessages> messages = std::make_shared<SpoiltMessages>();
  std::shared_ptr<SpoiltTimer> timer = std::make_shared<SpoiltTimer>();
  QPointer<QWidget> window = new QWidget;
  QPointer<ctlCycEd> control;
  int errors = 0;
  Mischief atError;
};

}  // namespace mavCycEd::test
