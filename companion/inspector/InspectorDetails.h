#pragma once

#include <QWidget>

#include "companion/inspector/InspectorLog.h"

class QLabel;
class QPlainTextEdit;
class QSyntaxHighlighter;

// The whole content of one event, to read, select and copy.
class InspectorDetails final : public QWidget {
  Q_OBJECT

 public:
  InspectorDetails();

  void show(const InspectorLog::Event& event);  // nullptr: none

 protected:
  void changeEvent(QEvent* event) override;

 private:
  InspectorLog::Event m_event;
  QLabel* m_title;
  QPlainTextEdit* m_text;
  QSyntaxHighlighter* m_colors;
};
