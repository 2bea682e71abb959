#pragma once

#include <QAccessibleWidget>

#include "platform/PlatformExport.h"

class View;

// A view as assistive technology reads it: the texts that it paints and its subviews, by rows from the top.
class PLATFORM_EXPORT ViewAccessible final : public QAccessibleWidget {
 public:
  // From now on all views, and pop-up buttons, are read as they show. Before the first one is made.
  static void install();

  ~ViewAccessible() override;

  QAccessible::Role role() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  explicit ViewAccessible(View* view);
  static QAccessibleInterface* made(const QString& className, QObject* object);

  const View* view() const;
  QList<QAccessibleInterface*> children() const;

  mutable QList<QAccessible::Id> m_texts;  // as many as the view ever painted at once
};
