#pragma once

#include <QSyntaxHighlighter>

// Colours the lines of a difference; their signs say the same to whoever sees no colour.
class DifferenceColors final : public QSyntaxHighlighter {
  Q_OBJECT

 public:
  using QSyntaxHighlighter::QSyntaxHighlighter;

  enum class Mode { Plain, Difference };
  void setMode(Mode mode) { m_mode = mode; }  // of what is shown next

 protected:
  void highlightBlock(const QString& text) override;

 private:
  Mode m_mode = Mode::Plain;
};
