#include "ErrorDock.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTableWidget>
#include <QTime>

namespace mavCycEd::host {
namespace {

enum Column { Time, Number, Text, Procedure, Line, ColumnCount };

QTableWidgetItem* cell(const QString& text, const QString& toolTip) {
  auto* const item = new QTableWidgetItem(text);
  item->setToolTip(toolTip);
  return item;
}

}  // namespace

ErrorDock::ErrorDock(QWidget* parent)
    : QDockWidget(QStringLiteral("Errors"), parent), table_(new QTableWidget(0, ColumnCount, this)) {
  setObjectName(QStringLiteral("errorDock"));
  table_->setObjectName(QStringLiteral("errorTable"));
  table_->setHorizontalHeaderLabels({QStringLiteral("Time"), QStringLiteral("Number"), QStringLiteral("Error"),
                                     QStringLiteral("Procedure"), QStringLiteral("Line")});
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setTabKeyNavigation(false);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setSectionResizeMode(Text, QHeaderView::Stretch);

  auto* const copyAction = new QAction(QStringLiteral("&Copy all"), this);
  auto* const clearAction = new QAction(QStringLiteral("C&lear"), this);
  table_->addActions({copyAction, clearAction});
  table_->setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(copyAction, &QAction::triggered, this, [this] { copyAll(); });
  connect(clearAction, &QAction::triggered, this, [this] { clear(); });

  setWidget(table_);
  hide();
}

void ErrorDock::add(int number, const QString& text, const QString& application, const QString& module,
                    const QString& procedure, int line) {
  const bool isFirst = table_->rowCount() == 0;
  if (table_->rowCount() >= mostErrors) table_->removeRow(0);
  const int row = table_->rowCount();
  table_->insertRow(row);
  const QString toolTip = QStringLiteral("%1\n%2, %3").arg(text, application, module);
  table_->setItem(row, Time, cell(QTime::currentTime().toString(QStringLiteral("HH:mm:ss")), toolTip));
  table_->setItem(row, Number, cell(QString::number(number), toolTip));
  table_->setItem(row, Text, cell(text, toolTip));
  table_->setItem(row, Procedure, cell(procedure.trimmed(), toolTip));
  table_->setItem(row, Line, cell(line > 0 ? QString::number(line) : QString(), toolTip));
  table_->scrollToBottom();
  if (!isFirst) return;
  show();
  raise();
}

int ErrorDock::count() const { return table_->rowCount(); }

void ErrorDock::copyAll() const {
  QStringList lines;
  for (int row = 0; row < table_->rowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column) cells << table_->item(row, column)->text().simplified();
    lines << cells.join(u'\t');
  }
  QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void ErrorDock::clear() {
  table_->setRowCount(0);
  hide();
}

}  // namespace mavCycEd::host
