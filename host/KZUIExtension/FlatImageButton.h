#pragma once

#include <QAbstractButton>
#include <QIcon>

#include "host/KZFoundation/KZHostExport.h"

// A button that shows an image for each of its states and nothing else.
class KZ_HOST_EXPORT FlatImageButton : public QAbstractButton {
  Q_OBJECT

 public:
  struct ImageNames {
    QString normal;
    QString hover;
    QString pressed;
    QString focus;
    QString disabled;
  };

  FlatImageButton();

  // Names of images below that folder; see KZRetinaHelper. Nothing is drawn for a name without an image.
  void setImageNames(const ImageNames& names, const QString& imageBundle);
  const ImageNames& imageNames() const { return m_names; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const QString& currentName() const;

  ImageNames m_names;
  QString m_bundle;
};
