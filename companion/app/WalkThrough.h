#pragma once

#include <QWidget>

class QGridLayout;

// Numbered steps through everything that the sandbox lets a newcomer try.
class WalkThrough final : public QWidget {
  Q_OBJECT

 public:
  WalkThrough();

 Q_SIGNALS:
  void copied(const QString& text);
  void siteChosen(const QString& site);

 private:
  void addStep(QGridLayout* grid, const QString& title, const QString& text);
  void follow(const QString& link);
};
