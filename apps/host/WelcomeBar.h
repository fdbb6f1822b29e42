#pragma once

#include <QFrame>
#include <QString>

class QPushButton;

namespace mavCycEd::host {

/// Stands above the editor while there is no instrument, and says what to do first.
class WelcomeBar : public QFrame {
  Q_OBJECT

 public:
  explicit WelcomeBar(QWidget* parent);

  /// Offers the instrument that was open last, by its catalogue's name; empty: there is none.
  void offerLast(const QString& catalogueName);

 signals:
  void openCatalogueWanted();
  void lastInstrumentWanted();

 private:
  QPushButton* last_;
};

}  // namespace mavCycEd::host
