#pragma once

class QWidget;

namespace vl::desktop {

/// So many steps of the window's grid in pixels: 4 a step, times the font scale. One stands inside
/// a group, two between controls, four between groups, six round a dialog.
int grid(int steps);

/// How large the texts of the interface are shown, 1 being the size the system asks for.
double fontScale();
/// Shows all texts of the interface at this scale; what lies outside 0.5 to 3 is brought to the
/// nearer end, what is no number to 1.
void applyFontScale(double scale);

/// Gives a dialog so many steps of width and height, but no more than nine tenths of its screen.
void sizeDialog(QWidget *dialog, int stepsWide, int stepsHigh);

} // namespace vl::desktop
