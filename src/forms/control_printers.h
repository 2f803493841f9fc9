// The printers of controls: one procedure a kind of Visual Basic control. Each reads the Access
// control in a fixed order and prints the Begin ... End block of the form file into output file
// number 1, under strCtlName. A line whose property cannot be read is missing; nothing is raised.
#pragma once

#include "core/main_object.h"

namespace tarrowin {

// Intrinsic controls, with strIndent.
void PrintTextBoxProps(MainObject& main, const LateBound& ctl);
void PrintLabelProps(MainObject& main, const LateBound& ctl);
void PrintCommandButtonProps(MainObject& main, const LateBound& ctl);  // and toggle buttons
void PrintCheckBoxProps(MainObject& main, const LateBound& ctl);
void PrintOptionButtonProps(MainObject& main, const LateBound& ctl);
// A box over a table or query is data-bound and needs a project; one with a list of items leaves an
// entry in astrComboSources or astrListSources for the code that fills it.
void PrintComboBoxProps(MainObject& main, const LateBound& ctl);
void PrintListBoxProps(MainObject& main, const LateBound& ctl);
void PrintRectangleProps(MainObject& main, const LateBound& ctl);  // and all that has no printer
void PrintLineProps(MainObject& main, const LateBound& ctl);
void PrintImageProps(MainObject& main, const LateBound& ctl);
void PrintObjectFrameProps(MainObject& main,
                           const LateBound& ctl);  // no kind of control leads here
void PrintOLEProps(MainObject& main, const LateBound& ctl);

// The open frame of a subform: the rows of PrintObjectFrameProps without the closing line.
void PrintSubFormFrameProps(MainObject& main, const LateBound& ctl);
// The grid of a subform that shows many records; its caller closes it.
void PrintSubFormAsSheet(MainObject& main, const LateBound& ctl);
// A shape with the saved size of a subform control. No conversion calls it.
void PrintSubFormProps(MainObject& main, const LateBound& ctl);

// The frame of an option group and a tab control, both left open for their members; the tab
// control's rows stand without strIndent.
void PrintOptionGroupProps(MainObject& main, const LateBound& ctl);
void PrintTabControlProps(MainObject& main, const LateBound& ctl);

// ActiveX controls, whose Begin line the dispatch has printed; without strIndent.
void PrintCalendarProps(MainObject& main, const LateBound& ctl);
void PrintCommonDialogProps(MainObject& main, const LateBound& ctl);
void PrintImageComboProps(MainObject& main, const LateBound& ctl);
void PrintImageListProps(MainObject& main, const LateBound& ctl);
void PrintListViewProps(MainObject& main, const LateBound& ctl);
void PrintProgressBarProps(MainObject& main, const LateBound& ctl);
void PrintRichTextProps(MainObject& main, const LateBound& ctl);
void PrintSliderProps(MainObject& main, const LateBound& ctl);
void PrintStatusBarProps(MainObject& main, const LateBound& ctl);
void PrintTabStripProps(MainObject& main, const LateBound& ctl);
void PrintToolBarProps(MainObject& main, const LateBound& ctl);
void PrintTreeViewProps(MainObject& main, const LateBound& ctl);

// Data controls and grids that stand on the Access form; with Begin lines of their own.
void PrintADODataCtlProps(MainObject& main, const LateBound& ctl);
void PrintGridControlProps(MainObject& main, const LateBound& ctl);
// The grid with the saved size of a subform control; its caller closes it. No conversion calls it.
void PrintMSHFlexGridProps(MainObject& main, const LateBound& ctl);

}  // namespace tarrowin
