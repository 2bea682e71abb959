#pragma once

#include "host/KZFoundation/KZHostExport.h"

// The metrics that all panes share, in points, font sizes too. For hosts as well: the names can be used at
// compile time, and the plug-in exports each, as QLibrary::resolve finds them. Any thread.
KZ_EXPORTED_CONSTANT constexpr qint32 defaultPrefsViewWidth = 320;
KZ_EXPORTED_CONSTANT constexpr qint32 marginAtLeftEdge = 32;
KZ_EXPORTED_CONSTANT constexpr qint32 marginAtRightEdge = 32;
KZ_EXPORTED_CONSTANT constexpr qint32 marginAtTopEdge = 24;
KZ_EXPORTED_CONSTANT constexpr qint32 marginAtBottomEdge = 24;
KZ_EXPORTED_CONSTANT constexpr qint32 secondMarginAtLeftEdge = 60;
KZ_EXPORTED_CONSTANT constexpr qint32 thirdMarginAtLeftEnd = 96;
KZ_EXPORTED_CONSTANT constexpr qint32 marginBetweenSubViews = 36;
KZ_EXPORTED_CONSTANT constexpr qint32 marginBetweenLabelAndContent = 10;
KZ_EXPORTED_CONSTANT constexpr qint32 marginBetweenContentAndButton = 6;
KZ_EXPORTED_CONSTANT constexpr qint32 marginLabelToContent = 10;
KZ_EXPORTED_CONSTANT constexpr qint32 verticalMarginFirstToSecondLevel = 12;
KZ_EXPORTED_CONSTANT constexpr qint32 commonLabelHeight = 16;
KZ_EXPORTED_CONSTANT constexpr qint32 popupButtonWidth = 50;
KZ_EXPORTED_CONSTANT constexpr qint32 popupButtonHeight = 22;
KZ_EXPORTED_CONSTANT constexpr qint32 marginPopupButtonToLabel = 6;
KZ_EXPORTED_CONSTANT constexpr qint32 checkboxButtonHeight = 16;
KZ_EXPORTED_CONSTANT constexpr qint32 boldLabelFontSize = 16;
KZ_EXPORTED_CONSTANT constexpr qint32 labelFontSize = 13;
