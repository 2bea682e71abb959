#pragma once

#include <QLayout>

// A row that goes on in the next line where the width ends, so that long texts and large fonts are not cut.
// What is hidden takes no room. From right to left where the widget is.
class FlowLayout final : public QLayout {
 public:
  FlowLayout(QWidget* widget, int horizontalGap, int verticalGap);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(m_items.size()); }
  QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
  QLayoutItem* takeAt(int index) override;
  QSize sizeHint() const override;     // one line
  QSize minimumSize() const override;  // one item a line
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  Qt::Orientations expandingDirections() const override { return {}; }
  void setGeometry(const QRect& rect) override;

 private:
  enum class Pass { Measure, Place };
  int arrange(const QRect& rect, Pass pass) const;  // the height

  QList<QLayoutItem*> m_items;
  int m_horizontalGap;
  int m_verticalGap;
};
