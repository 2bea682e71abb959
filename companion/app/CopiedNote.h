#pragma once

#include <QLabel>
#include <QTimer>

// Says for a moment, at its parent's lower edge, that something was copied.
class CopiedNote final : public QLabel {
 public:
  explicit CopiedNote(QWidget* parent);

  void tell(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QTimer m_end;
};
