#include "platform/ContentView.h"

#include <cmath>

#include "platform/Look.h"

ContentView::ContentView(QWidget* window) : QScrollArea(window) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setLookStyle(this);

  auto* subview = new QWidget;
  subview->setObjectName(QStringLiteral("contentSubview"));
  setWidget(subview);
  subview->setAutoFillBackground(false);
  viewport()->setAutoFillBackground(false);
}

void ContentView::setContentSize(const Size& content, const Size& visible) {
  const auto barFor = [](bool isCut) { return isCut ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff; };
  m_contentSize = {int(std::ceil(content.width)), int(std::ceil(content.height))};
  setHorizontalScrollBarPolicy(barFor(visible.width < content.width));
  setVerticalScrollBarPolicy(barFor(visible.height < content.height));
  fill();
}

void ContentView::resizeEvent(QResizeEvent* event) {
  fill();
  QScrollArea::resizeEvent(event);
}

void ContentView::fill() {
  contentSubview()->resize(m_contentSize.expandedTo(viewport()->size()));
}
