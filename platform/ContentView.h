#pragma once

#include <QScrollArea>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"

// The part of a window below its toolbar. Its one subview fills it, and scrolls when it is larger. Main
// thread only.
class PLATFORM_EXPORT ContentView : public QScrollArea {
  Q_OBJECT

 public:
  explicit ContentView(QWidget* window);

  QWidget* contentSubview() const { return widget(); }

  // The least size of the subview. Bars show only in a direction in which `visible` is smaller.
  void setContentSize(const Size& content, const Size& visible);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fill();

  QSize m_contentSize;
};
