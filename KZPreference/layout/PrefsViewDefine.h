#pragma once

#include <QString>
#include <QtGlobal>

// The metrics that all panes share, in points, and the text-width rule.
inline constexpr qint32 defaultPrefsViewWidth = 320;
inline constexpr qint32 marginAtLeftEdge = 32;
inline constexpr qint32 marginAtRightEdge = 32;
inline constexpr qint32 marginAtTopEdge = 24;
inline constexpr qint32 marginAtBottomEdge = 24;
inline constexpr qint32 secondMarginAtLeftEdge = 60;
inline constexpr qint32 thirdMarginAtLeftEnd = 96;
inline constexpr qint32 marginBetweenSubViews = 36;
inline constexpr qint32 marginBetweenLabelAndContent = 10;
inline constexpr qint32 marginBetweenContentAndButton = 6;
inline constexpr qint32 marginLabelToContent = 10;
inline constexpr qint32 verticalMarginFirstToSecondLevel = 12;
inline constexpr qint32 commonLabelHeight = 16;
inline constexpr qint32 popupButtonWidth = 50;
inline constexpr qint32 popupButtonHeight = 22;
inline constexpr qint32 marginPopupButtonToLabel = 6;
inline constexpr qint32 checkboxButtonHeight = 16;
inline constexpr qint32 boldLabelFontSize = 16;
inline constexpr qint32 labelFontSize = 13;

// Room that a measured text gets when it becomes a control's or a column's width.
inline constexpr double textPad = 4.0;

// The width of the text in the label font at 13 points, with the pad.
double commonLabelWidth(const QString& text);

// Widths without the pad, in the three fonts of the panes.
double labelTextWidth(const QString& text);
double systemTextWidth(const QString& text);
