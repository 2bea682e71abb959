#pragma once

#include <QIconEngine>
#include <QImage>
#include <memory>

class QPalette;

// The pictures of one image; the 2x ones and the dark ones may be missing.
struct KZImagePictures {
  QImage light;
  QImage light2x;
  QImage dark;
  QImage dark2x;
};

// Chooses, or colours, a picture when it is drawn. The palette is that of the widget that is drawn on; an
// icon that is turned into a pixmap, away from any widget, goes by the application's.
class KZImageEngine final : public QIconEngine {
 public:
  explicit KZImageEngine(std::shared_ptr<const KZImagePictures> pictures);

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override;

 private:
  QImage picture(const QPalette& palette, QIcon::State state, qreal scale) const;

  std::shared_ptr<const KZImagePictures> m_pictures;
};
