#include <QStyle>

#include "platform/LookStyleParts.h"

namespace {

constexpr int kTabHeight = 24;
constexpr int kTabPadding = 14;
constexpr qreal kTrackRadius = 6;
constexpr qreal kTabInset = 2;  // from the track's edge to the selected tab

bool isContrastTab(const QStyleOption& option) {
  return lookColorsOf(option).focusWidth > 2;
}

bool isSelectedTab(const QStyleOption& option) {
  return option.state & QStyle::State_Selected;
}

// This tab's part of the track under all tabs, which continues into the neighbouring tabs.
void drawTrackPart(const QStyleOptionTab& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const bool isLeftToRight = option.direction != Qt::RightToLeft;
  const bool isOnly = option.position == QStyleOptionTab::OnlyOneTab;
  const bool isFirst = isOnly || option.position == QStyleOptionTab::Beginning;
  const bool isLast = isOnly || option.position == QStyleOptionTab::End;
  QRectF track = option.rect;
  if (!(isLeftToRight ? isFirst : isLast)) track.setLeft(track.left() - 2 * kTrackRadius);
  if (!(isLeftToRight ? isLast : isFirst)) track.setRight(track.right() + 2 * kTrackRadius);
  painter->save();
  painter->setClipRect(option.rect);
  drawLookBox(painter, track, kTrackRadius, colors.tilePressed, colors.border);
  painter->restore();
}

}  // namespace

namespace lookTabs {

bool isSwitch(const QStyleOptionTab& option) {
  return option.shape == QTabBar::RoundedNorth || option.shape == QTabBar::RoundedSouth;
}

QSize tabSize(const QStyleOptionTab& option) {
  return {option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width() + 2 * kTabPadding,
          qMax(kTabHeight, option.fontMetrics.height() + 8)};
}

void drawTab(const QStyleOptionTab& option, QPainter* painter) {
  drawTrackPart(option, painter);
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const QRectF tab = QRectF(option.rect).adjusted(kTabInset, kTabInset, -kTabInset, -kTabInset);
  if (isSelectedTab(option) && isContrastTab(option)) {
    const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
    drawLookBox(painter, tab, kTrackRadius - kTabInset, accent, accent);
  } else if (isSelectedTab(option)) {
    drawLookBox(painter, tab, kTrackRadius - kTabInset, colors.faceTop, lookBorderOf(colors, states));
  } else if (states.isHovered) {
    drawLookBox(painter, tab, kTrackRadius - kTabInset, colors.tileHover, colors.tileBorder);
  }
  if (!states.isFocused || !isSelectedTab(option)) return;
  drawLookFocus(painter, option, option.rect, kTrackRadius);
  if (!isContrastTab(option)) return;
  // The focus ring has the tab's colour, so a second one is drawn inside.
  drawLookBox(painter, tab.adjusted(1, 1, -1, -1), kTrackRadius - kTabInset - 1, Qt::NoBrush,
              option.palette.color(QPalette::Active, QPalette::HighlightedText));
}

void drawLabel(const QStyleOptionTab& option, QPainter* painter) {
  const LookStates states = lookStatesOf(option);
  const bool isOnAccent = isSelectedTab(option) && isContrastTab(option);
  const QPalette::ColorGroup group = states.isEnabled ? QPalette::Active : QPalette::Disabled;
  painter->setPen(option.palette.color(group, isOnAccent ? QPalette::HighlightedText : QPalette::ButtonText));
  const QString shown = option.fontMetrics.elidedText(
      option.text, Qt::ElideRight, option.rect.width() - kTabPadding, Qt::TextShowMnemonic);
  painter->drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, shown);
}

}  // namespace lookTabs
