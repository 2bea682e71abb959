#include "companion/format/ControlFinder.h"

#include <QRegularExpression>
#include <QWidget>
#include <algorithm>

#include "platform/FrameLayout.h"
#include "platform/View.h"

QString controlNameOf(const QWidget& view) {
  if (!view.objectName().isEmpty()) return view.objectName();
  return qobject_cast<const View*>(&view) ? QString::fromLatin1(view.metaObject()->className()) : QString();
}

ControlFinder::ControlFinder(const QWidget* content, const QWidgetList& otherWindows) {
  if (content) collectPanes(*content);
  for (QWidget* window : otherWindows) {
    const QString name = QString::fromLatin1(window->metaObject()->className());
    for (QWidget* control : window->findChildren<QWidget*>(QRegularExpression(QStringLiteral("^m_")))) {
      m_entries.append({control, Place::OtherWindow, {{name, name}, {control->objectName(), {}}}});
    }
  }
}

void ControlFinder::collectPanes(const QWidget& content) {
  const QList<QWidget*> shown = subviewsOf(&content);
  for (QWidget* pane : shown) collect(pane, pane == shown.last() ? Place::InFront : Place::Behind, {});
  for (View* pane : content.findChildren<View*>(Qt::FindDirectChildrenOnly)) {
    if (!shown.contains(pane)) collect(pane, Place::Away, {});
  }
}

void ControlFinder::collect(QWidget* view, Place place, const QList<Part>& path) {
  QList<Part> own = path;
  const QString name = controlNameOf(*view);
  if (!name.isNull()) {
    own.append({name, QString::fromLatin1(view->metaObject()->className())});
    m_entries.append({view, place, own});
  }
  for (QWidget* child : subviewsOf(view)) collect(child, place, own);
}

bool ControlFinder::Entry::isNamed(const QStringList& wanted) const {
  if (path.last().name != wanted.last()) return false;
  auto part = path.begin();
  for (const QString& parent : wanted.first(wanted.size() - 1)) {
    part = std::find_if(part, path.end() - 1,
                        [&](const Part& known) { return known.name == parent || known.className == parent; });
    if (part == path.end() - 1) return false;
    ++part;
  }
  return true;
}

QString ControlFinder::Entry::name(qsizetype parts) const {
  QStringList names;
  for (const Part& part : path.last(parts)) names.append(part.name);
  return names.join(u'/');
}

QList<const ControlFinder::Entry*> ControlFinder::matching(const QString& name) const {
  const QStringList wanted = name.split(u'/');
  QList<const Entry*> matches;
  for (const Entry& entry : m_entries) {
    if (!entry.isNamed(wanted)) continue;
    if (!matches.isEmpty() && entry.place > matches.first()->place) continue;
    if (!matches.isEmpty() && entry.place < matches.first()->place) matches.clear();
    matches.append(&entry);
  }
  return matches;
}

ControlFinder::Found ControlFinder::find(const QString& name) const {
  const QList<const Entry*> matches = matching(name);
  if (matches.isEmpty()) return {nullptr, QStringLiteral("there is no control %1").arg(name)};
  if (matches.size() == 1) return {matches.first()->control, {}};
  QStringList candidates;
  for (const Entry* entry : matches) candidates.append(entry->name(entry->path.size()));
  return {nullptr, QStringLiteral("%1 is not unique: %2").arg(name, candidates.join(QStringLiteral(", ")))};
}

QString ControlFinder::nameOf(const QWidget* control) const {
  for (const QWidget* widget = control; widget; widget = widget->parentWidget()) {
    const auto entry = std::ranges::find(m_entries, widget, &Entry::control);
    if (entry == m_entries.end()) continue;
    for (qsizetype parts = 1; parts < entry->path.size(); ++parts) {
      const QString name = entry->name(parts);
      if (matching(name).size() == 1) return name;
    }
    return entry->name(entry->path.size());
  }
  return {};
}
