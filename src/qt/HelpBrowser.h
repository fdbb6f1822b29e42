#pragma once

#include <QTextBrowser>

namespace mavCycEd::qt {

/// Shows pages of the help, in colours that can be read on light and on dark paper.
class HelpBrowser : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpBrowser(QWidget* parent);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void takeColours();
};

}  // namespace mavCycEd::qt
