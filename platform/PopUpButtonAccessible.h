#pragma once

#include <QAccessibleWidget>

class PopUpButton;

// A pop-up button for assistive technology. The toolkit tells a combo box's value only by its list, which
// does not exist before it is opened, so a screen reader that finds a label says no value. Here the title is
// a text, too.
class PopUpButtonAccessible final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit PopUpButtonAccessible(PopUpButton* button);

  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;
  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QString text(int start, int end) const override;
  int characterCount() const override;
  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override;

 private:
  PopUpButton* button() const;
};
