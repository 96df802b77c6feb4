#pragma once
#include <QString>

class QWidget;

namespace kestrel {

struct StepRecord;

// What each field means, in the program's own words: the tool tips of the general settings,
// the pin configuration, the event control and the step parameters. A tool tip is also a
// control's accessible description unless the control sets one of its own, so screen
// readers say the same.

// Gives the controls below `root` that the tables know (by object name) their meaning and
// range. Controls that already carry a tool tip keep it.
void explainFields(QWidget* root);

// What parameter 0..3 of `step` does for its instruction and the range its box takes on
// `currentPin`, or that the instruction does not use it.
QString stepParameterTip(const StepRecord& step, int parameter, int currentPin, int numberingBase);

// The tool tip and, when `description` is given, an accessible description that adds to it
// (e.g. the key that opens a help tool).
void setTip(QWidget* w, const QString& tip, const QString& description = {});

} // namespace kestrel
