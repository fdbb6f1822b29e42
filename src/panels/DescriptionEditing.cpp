#include "panels/DescriptionEditing.h"

#include "panels/StepNames.h"

namespace mavCycEd {

void DescriptionEditing::txtCycleDescription_Change() {
  guarded(errors_, "txtCycleDescription_Change", [this] {
    constexpr int pauseMilliseconds = 1000;
    cycle_.changed = true;
    const CycleView::ShownByProcedure typed(view_);
    const CycleDocument::Transaction stretch(cycle_.document, stepNames::changeDescription, screen_.selection(),
                                             CycleDocument::Transaction::Kind::Stretch);
    cycle_.document.perform(edits::changeDescription(cycle_.cycle().description, screen_.txtCycleDescription.text()));
    tmrTypingPause_.setInterval(pauseMilliseconds);
    tmrTypingPause_.setEnabled(true);
  });
}

void DescriptionEditing::endStretch() {
  guarded(errors_, "txtCycleDescription_LostFocus", [this] {
    cycle_.document.sealStretch();
    if (tmrTypingPause_.isEnabled()) tmrTypingPause_.setEnabled(false);
  });
}

}  // namespace mavCycEd
