#include "companion/format/ControlFinder.h"

#include <QWidget>
#include <algorithm>

#include "platform/FrameLayout.h"
#include "platform/View.h"

namespace {

// Both end in the same name, and the other names of `wanted` stand in `path` in that order.
bool pathMatches(const QList<QString>& path, const QList<QString>& wanted) {
  if (path.last() != wanted.last()) return false;
  auto place = path.begin();
  for (const QString& name : wanted) {
    place = std::find(place, path.end(), name);
    if (place == path.end()) return false;
    ++place;
  }
  return true;
}

}  // namespace

QString controlNameOf(const QWidget& view) {
  if (!view.objectName().isEmpty()) return view.objectName();
  return qobject_cast<const View*>(&view) ? QString::fromLatin1(view.metaObject()->className()) : QString();
}

ControlFinder::ControlFinder(const QWidget* content) {
  if (!content) return;
  const QList<QWidget*> shown = subviewsOf(content);
  for (QWidget* pane : shown) collect(pane, pane == shown.last() ? Place::InFront : Place::Behind, {});
  for (View* pane : content->findChildren<View*>(Qt::FindDirectChildrenOnly)) {
    if (!shown.contains(pane)) collect(pane, Place::Away, {});
  }
}

void ControlFinder::collect(QWidget* view, Place place, const QList<QString>& path) {
  QList<QString> own = path;
  const QString name = controlNameOf(*view);
  if (!name.isNull()) {
    own.append(name);
    m_entries.append({view, place, own});
  }
  for (QWidget* child : subviewsOf(view)) collect(child, place, own);
}

QList<const ControlFinder::Entry*> ControlFinder::matching(const QList<QString>& wanted) const {
  QList<const Entry*> matches;
  for (const Entry& entry : m_entries) {
    if (!pathMatches(entry.path, wanted)) continue;
    if (!matches.isEmpty() && entry.place > matches.first()->place) continue;
    if (!matches.isEmpty() && entry.place < matches.first()->place) matches.clear();
    matches.append(&entry);
  }
  return matches;
}

ControlFinder::Found ControlFinder::find(const QString& name) const {
  const QList<const Entry*> matches = matching(name.split(u'/'));
  if (matches.isEmpty()) return {nullptr, QStringLiteral("there is no control %1").arg(name)};
  if (matches.size() == 1) return {matches.first()->control, {}};
  QStringList candidates;
  for (const Entry* entry : matches) candidates.append(entry->path.join(u'/'));
  return {nullptr, QStringLiteral("%1 is not unique: %2").arg(name, candidates.join(QStringLiteral(", ")))};
}

QString ControlFinder::nameOf(const QWidget* control) const {
  for (const QWidget* widget = control; widget; widget = widget->parentWidget()) {
    const auto entry = std::ranges::find(m_entries, widget, &Entry::control);
    if (entry == m_entries.end()) continue;
    for (qsizetype parts = 1; parts < entry->path.size(); ++parts) {
      const QList<QString> name = entry->path.last(parts);
      if (matching(name).size() == 1) return name.join(u'/');
    }
    return entry->path.join(u'/');
  }
  return {};
}
