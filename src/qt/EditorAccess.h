#pragma once

namespace mavCycEd {

class EditorControl;
class ctlCycEd;

/// The editor behind the widget, for tools that look behind the screen.
EditorControl& editorOf(ctlCycEd& control);

}  // namespace mavCycEd
