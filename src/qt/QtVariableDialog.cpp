#include "qt/QtVariableDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QVBoxLayout>
#include <array>

namespace mavCycEd::qt {
namespace {

QString inWords(const char* text) { return QCoreApplication::translate("mavCycEd::frmparams", text); }

}  // namespace

QtVariableDialog::QtVariableDialog(QWidget* owner, HelpDesk& help) : help_(help), frmparams_("frmparams", owner) {
  gate_.setEndEdit([this] { grdParamStnd_.endEdit(); });
  mnuSyrConstant_.setPlace([this] { return grdParamStnd_.view()->menuPlace(); });
  OKButton_.widget()->setDefault(true);
  grdParamStnd_.list().setEnterOpens(false);  // Enter is OK
  layOut();
  setTabOrder();
  nameForPeople();
}

QtVariableDialog::~QtVariableDialog() {
  if (QWidget* const open = window()) help_.leave(open);
}

VariableDialogScreen QtVariableDialog::controls() {
  return {.frmparams = frmparams_,
          .fraValue = fraValue_,
          .txtParamName = txtParamName_,
          .fraParamType = fraParamType_,
          .optNrValue = optNrValue_,
          .optObjValue = optObjValue_,
          .fraValues = fraValues_,
          .grdParamStnd = grdParamStnd_,
          .lblUnit = lblUnit_,
          .cboUnit = cboUnit_,
          .fraObjects = fraObjects_,
          .lstObject = lstObject_,
          .OKButton = OKButton_,
          .cmdCancel = cmdCancel_,
          .mnuSyrConstant = mnuSyrConstant_};
}

void QtVariableDialog::layOut() {
  (new QVBoxLayout(fraValue_.widget()))->addWidget(txtParamName_.widget());

  auto* const types = new QHBoxLayout(fraParamType_.widget());
  types->addWidget(optNrValue_.widget());
  types->addWidget(optObjValue_.widget());
  types->addStretch();

  auto* const unit = new QHBoxLayout;
  unit->addWidget(lblUnit_.widget());
  unit->addWidget(cboUnit_.widget(), 1);
  lblUnit_.widget()->setBuddy(cboUnit_.widget());
  auto* const settings = new QVBoxLayout(fraValues_.widget());
  settings->addWidget(grdParamStnd_.widget());
  settings->addLayout(unit);

  (new QVBoxLayout(fraObjects_.widget()))->addWidget(lstObject_.widget());

  // In the order of the platform.
  auto* const buttons = new QDialogButtonBox(window());
  buttons->addButton(OKButton_.widget(), QDialogButtonBox::AcceptRole);
  buttons->addButton(cmdCancel_.widget(), QDialogButtonBox::RejectRole);

  auto* const whole = new QVBoxLayout(window());
  whole->addWidget(fraValue_.widget());
  whole->addWidget(fraParamType_.widget());
  whole->addWidget(fraValues_.widget(), 1);
  whole->addWidget(fraObjects_.widget(), 1);
  whole->addWidget(buttons);
}

void QtVariableDialog::setTabOrder() {
  const std::array<QWidget*, 8> order{txtParamName_.widget(), optNrValue_.widget(), optObjValue_.widget(),
                                      grdParamStnd_.view(),   cboUnit_.widget(),    lstObject_.widget(),
                                      OKButton_.widget(),     cmdCancel_.widget()};
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

void QtVariableDialog::nameForPeople() {
  txtParamName_.widget()->setAccessibleName(inWords("Variable name"));
  optNrValue_.widget()->setAccessibleName(inWords("Numeric value"));
  optObjValue_.widget()->setAccessibleName(inWords("Object"));
  grdParamStnd_.view()->setAccessibleName(inWords("Settings"));
  cboUnit_.widget()->setAccessibleName(inWords("Unit"));
  lstObject_.widget()->setAccessibleName(inWords("Object types"));
  OKButton_.widget()->setAccessibleName(inWords("OK"));
  cmdCancel_.widget()->setAccessibleName(inWords("Cancel"));
  fraValue_.widget()->setAccessibleName(inWords("Variable name"));
  fraParamType_.widget()->setAccessibleName(inWords("Variable type"));
  fraValues_.widget()->setAccessibleName(inWords("Settings"));
  fraObjects_.widget()->setAccessibleName(inWords("Object types"));
  mnuSyrConstant_.widget()->setAccessibleName(inWords("Offered values"));
}

std::unique_ptr<VariableDialogWindow> QtVariableDialogs::createVariableDialog() {
  auto dialog = std::make_unique<QtVariableDialog>(&control_, help_);
  window_ = dialog->dialog().widget();
  return dialog;
}

void QtVariableDialogs::outliveControl() {
  if (window_) window_->setParent(nullptr);
}

}  // namespace mavCycEd::qt
