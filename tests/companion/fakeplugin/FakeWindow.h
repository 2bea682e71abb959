#pragma once

#include <QString>
#include <functional>

#include "host/KZFoundation/Dictionary.h"
#include "platform/View.h"
#include "platform/WindowController.h"

class QToolBar;

using FakeSender = std::function<void(quint64 command, const Content& content)>;

// A pane with one control of every kind; each sends a command when it is used.
class FakePane final : public View {
  Q_OBJECT

 public:
  FakePane(const Frame& frame, FakeSender sender);

  QList<DrawnText> drawnTexts() const override;

 private:
  void addFields();
  void addButtons();
  void addGroups();

  FakeSender m_send;
};

// The smallest window that a host takes for the Preferences window.
class FakeWindowController final : public WindowController {
  Q_OBJECT

 public:
  explicit FakeWindowController(FakeSender sender);

 protected:
  void windowDidBecomeKey() override;
  void windowWillClose() override;
  void keyDown(QKeyEvent* event) override;

 private:
  void addPane(QToolBar* toolBar, const QString& label);

  FakeSender m_send;
};
