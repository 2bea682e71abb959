#pragma once

#include <QString>
#include <QStringList>

#include "companion/app/DemoUser.h"
#include "companion/session/UserInput.h"

class CompanionWindow;
class QWidget;

// A demonstration without anybody watching: clicks through the panes of both variants
// and takes their pictures.
class DemoTour final {
 public:
  DemoTour(CompanionWindow* window, const QString& folder)
      : m_window(window), m_folder(folder) {}  // not owned

  // The paths of the pictures, in the order in which they were taken; empty when none could be written.
  [[nodiscard]] QStringList play();

 private:
  QStringList playVariant(demouser::Variant variant, const QString& name);
  QString takePicture(QWidget* window, const QString& name);

  CompanionWindow* m_window;
  QString m_folder;
  UserInput m_user;
};
