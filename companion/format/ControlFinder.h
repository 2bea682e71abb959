#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidgetList>

class QWidget;

// Names of the views below the content view. A view's name is its object name; a group or row without one has
// the name of its class.
QString controlNameOf(const QWidget& view);  // null for a part of a control

// Finds the controls that are alive below a view, by name, and those of other windows.
class ControlFinder final {
 public:
  explicit ControlFinder(const QWidget* content, const QWidgetList& otherWindows = {});  // nullptr: no view

  struct [[nodiscard]] Found {
    QWidget* control = nullptr;
    QString error;  // why there is none
  };

  // "m_field", or with parents in front where that is not unique: "Group/m_field". A parent is given by its
  // name or its class, or left out. A name in the pane in front comes before the same name in a pane that is
  // fading away, that before one in a pane that is not in the window, and that before one in another window.
  Found find(const QString& name) const;

  // The shortest name that finds the control, or the nearest of its parents that has one; null when there is
  // none.
  QString nameOf(const QWidget* control) const;

 private:
  enum class Place { InFront, Behind, Away, OtherWindow };
  struct Part {
    QString name;
    QString className;
  };
  struct Entry {
    QWidget* control;
    Place place;
    QList<Part> path;  // from the content view or the other window down, the control itself last

    bool isNamed(const QStringList& wanted) const;
    QString name(qsizetype parts) const;  // with as many parts as that
  };

  void collectPanes(const QWidget& content);
  void collect(QWidget* view, Place place, const QList<Part>& path);
  // Those in the nearest place only.
  QList<const Entry*> matching(const QString& name) const;

  QList<Entry> m_entries;
};
