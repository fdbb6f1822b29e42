#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

class QWidget;

namespace mavCycEd::host {

/// Knows whether the cycle in an editor has changed, without asking the editor more than is good for it: the answer
/// costs the editor the writing of the whole cycle.
///
/// It looks at what the operator does in the editor. Nothing done, nothing asked. After the last key or click there is
/// a rest of a second before the editor is asked. A cycle whose answer takes long is not asked about at all then: it
/// counts as changed as soon as the operator enters something, until a question that matters is asked.
class ChangeWatch : public QObject {
  Q_OBJECT

 public:
  /// Watches an editor; `isChanged` asks it. The editor outlives this object.
  ChangeWatch(QWidget& editor, std::function<bool()> isChanged);

  /// Whether the cycle has changed, as far as is known.
  bool changed() const { return changed_; }
  /// Whether the operator may have entered something since settle(): typed, pasted, pressed a button, chosen from a
  /// menu. The editor knows of no change while there is nothing in the sequence; this knows.
  bool entered() const { return entered_; }

  /// Asks now. For questions whose answer must be right, as before work is lost.
  bool ask();
  /// Asks if there is something to ask and the answer comes quickly.
  void glance();
  /// A cycle was loaded or saved: this is the state from now on, and nothing has been entered.
  void settle(bool changed);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 signals:
  void changedChanged(bool changed);

 private:
  bool isInEditor(const QObject* receiver) const;
  void takeInput(bool entering);
  void whenRested();
  bool answersQuickly() const;
  void setChanged(bool changed);

  QWidget& editor_;
  std::function<bool()> isChanged_;
  QTimer rest_;
  qint64 lastAnswerTook_ = 0;  // milliseconds
  bool inputSinceAnswer_ = false;
  bool entered_ = false;
  bool changed_ = false;
};

}  // namespace mavCycEd::host
