#include "qt/EditorScreen.h"

#include <QCoreApplication>
#include <QSplitter>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "kit/FirstRowTimer.h"
#include "qt/FocusRules.h"
#include "qt/QtTimer.h"

namespace mavCycEd::qt {
namespace {

QString inWords(const char* text) { return QCoreApplication::translate("mavCycEd::ctlCycEd", text); }

// Frames stand in frames here: what is around their contents is kept narrow.
constexpr QMargins frameMargins(6, 4, 6, 6);

// A list with its buttons to the right of it.
void layOutList(QGroupBox& frame, QWidget* list, std::initializer_list<QPushButton*> buttons) {
  auto* const column = new QVBoxLayout;
  for (QPushButton* const button : buttons) column->addWidget(button);
  column->addStretch();
  auto* const row = new QHBoxLayout(&frame);
  row->setContentsMargins(frameMargins);
  row->addWidget(list);
  row->addLayout(column);
}

}  // namespace

EditorScreen::EditorScreen(QWidget& control, std::shared_ptr<platform::Timer> gridTimer,
                           std::shared_ptr<platform::Timer> typingTimer)
    : control_(control),
      content_(new QWidget(&control)),
      tmrUpdateGrid_(std::move(gridTimer)),
      tmrTypingPause_(std::move(typingTimer)) {
  gate_.setEndEdit([this] { GrdAtom_.endEdit(); });
  mnuSubParam_.setPlace([this] { return GrdAtom_.view()->menuPlace(); });
  if (!tmrUpdateGrid_) {
    tmrUpdateGrid_ = std::make_shared<kit::FirstRowTimer>(std::make_unique<QtTimer>("tmrUpdateGrid"), GrdAtom_.list());
  }
  if (!tmrTypingPause_) tmrTypingPause_ = std::make_shared<QtTimer>("tmrTypingPause");
  layOut();
  connectKeys();
  setTabOrder();
  nameForPeople();
}

void WidgetRelease::operator()(QWidget* widget) const {
  if (later) {
    widget->deleteLater();
  } else {
    delete widget;
  }
}

void EditorScreen::outliveControl() {
  help_.close();
  content_.get_deleter().later = true;
  content_->setParent(nullptr);
  variableDialogs_.outliveControl();
}

ControlScreen EditorScreen::controls() {
  return {.fraCyclePart = fraCyclePart_,
          .fraDescription = fraDescription_,
          .txtCycleDescription = txtCycleDescription_,
          .fraAtom = fraAtom_,
          .lstAtomSequence = lstAtomSequence_,
          .cmdInset = cmdInset_,
          .cmdReplace = cmdReplace_,
          .cmdDelete = cmdDelete_,
          .fraVariables = fraVariables_,
          .lstVariables = lstVariables_,
          .cmdIns = cmdIns_,
          .cmdDel = cmdDel_,
          .fraSelectedMacro = fraSelectedMacro_,
          .cboAtom = cboAtom_,
          .GrdAtom = GrdAtom_,
          .cmdDefault = cmdDefault_,
          .mnuSubParam = mnuSubParam_,
          .tmrUpdateGrid = *tmrUpdateGrid_,
          .tmrTypingPause = *tmrTypingPause_,
          .variableDialogs = variableDialogs_};
}

void EditorScreen::layOut() {
  layOutSelectedMacro();
  auto* const description = new QVBoxLayout(fraDescription_.widget());
  description->setContentsMargins(frameMargins);
  description->addWidget(txtCycleDescription_.widget());
  layOutList(*fraAtom_.widget(), lstAtomSequence_.widget(),
             {cmdInset_.widget(), cmdReplace_.widget(), cmdDelete_.widget()});
  layOutList(*fraVariables_.widget(), lstVariables_.widget(), {cmdIns_.widget(), cmdDel_.widget()});

  auto* const parts = new QSplitter(Qt::Vertical, fraCyclePart_.widget());
  parts->setChildrenCollapsible(false);
  parts->addWidget(fraDescription_.widget());
  parts->addWidget(fraAtom_.widget());
  parts->addWidget(fraVariables_.widget());
  parts->setStretchFactor(0, 1);
  parts->setStretchFactor(1, 4);
  parts->setStretchFactor(2, 2);
  auto* const cycle = new QVBoxLayout(fraCyclePart_.widget());
  cycle->setContentsMargins(frameMargins);
  cycle->addWidget(parts);

  auto* const halves = new QSplitter(Qt::Horizontal, content_.get());
  halves->setChildrenCollapsible(false);
  halves->addWidget(fraSelectedMacro_.widget());
  halves->addWidget(fraCyclePart_.widget());
  halves->setStretchFactor(0, 4);
  halves->setStretchFactor(1, 5);
  auto* const inside = new QVBoxLayout(content_.get());
  inside->setContentsMargins(frameMargins);
  inside->addWidget(halves);
  auto* const whole = new QVBoxLayout(&control_);
  whole->setContentsMargins({});
  whole->addWidget(content_.get());
}

void EditorScreen::layOutSelectedMacro() {
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdDefault_.widget());
  auto* const column = new QVBoxLayout(fraSelectedMacro_.widget());
  column->setContentsMargins(frameMargins);
  column->addWidget(cboAtom_.widget());
  column->addWidget(GrdAtom_.widget());
  column->addLayout(buttons);
}

// What the mouse does by clicks and double clicks has its keys, each good only in its own list.
void EditorScreen::connectKeys() {
  QObject::connect(lstAtomSequence_.widget(), &TextListView::deletePressed, cmdDelete_.widget(), &QPushButton::click);
  QObject::connect(lstVariables_.widget(), &TextListView::deletePressed, cmdDel_.widget(), &QPushButton::click);
  QObject::connect(lstAtomSequence_.widget(), &TextListView::returnPressed, GrdAtom_.view(),
                   &ValueListView::editCurrentRow);
  QObject::connect(lstVariables_.widget(), &TextListView::returnPressed, &lstVariables_, &QtItemListBox::doubleClick);
}

// The way of the work: choose an atom, fill in its values, put it into the sequence.
void EditorScreen::setTabOrder() {
  const std::array<QWidget*, 11> order{
      cboAtom_.widget(),         GrdAtom_.view(),     cmdInset_.widget(),   cmdReplace_.widget(),
      lstAtomSequence_.widget(), cmdDelete_.widget(), cmdDefault_.widget(), txtCycleDescription_.widget(),
      lstVariables_.widget(),    cmdIns_.widget(),    cmdDel_.widget()};
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

// The page that fits where the keyboard is.
HelpPage EditorScreen::helpPage() const {
  if (holdsFocus(*GrdAtom_.view())) return HelpPage::Values;
  return holdsFocus(*fraVariables_.widget()) ? HelpPage::Variables : HelpPage::Screen;
}

void EditorScreen::nameForPeople() {
  cboAtom_.widget()->setAccessibleName(inWords("Atom"));
  GrdAtom_.view()->setAccessibleName(inWords("Atom parameters"));
  cmdDefault_.widget()->setAccessibleName(inWords("Default parameters"));
  txtCycleDescription_.widget()->setAccessibleName(inWords("Cycle description"));
  lstAtomSequence_.widget()->setAccessibleName(inWords("Atom sequence"));
  cmdInset_.widget()->setAccessibleName(inWords("Insert atom"));
  cmdReplace_.widget()->setAccessibleName(inWords("Replace atom"));
  cmdDelete_.widget()->setAccessibleName(inWords("Delete atom"));
  lstVariables_.widget()->setAccessibleName(inWords("Cycle variables"));
  cmdIns_.widget()->setAccessibleName(inWords("Insert variable"));
  cmdDel_.widget()->setAccessibleName(inWords("Delete variable"));
  fraSelectedMacro_.widget()->setAccessibleName(inWords("Selected atom"));
  fraCyclePart_.widget()->setAccessibleName(inWords("Cycle"));
  fraDescription_.widget()->setAccessibleName(inWords("Description"));
  fraAtom_.widget()->setAccessibleName(inWords("Atom sequence"));
  fraVariables_.widget()->setAccessibleName(inWords("Cycle variables"));
  mnuSubParam_.widget()->setAccessibleName(inWords("Offered values"));
}

}  // namespace mavCycEd::qt
