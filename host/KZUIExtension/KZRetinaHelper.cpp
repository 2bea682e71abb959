#include "host/KZUIExtension/KZRetinaHelper.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <memory>

namespace {

constexpr qreal kDisabledOpacity = 0.4;
constexpr int kInkLimit = 110;  // lighter pixels are mixed with the paper colour

QRgb activeRgb(const QPalette& palette, QPalette::ColorRole role) {
  return palette.color(QPalette::Active, role).rgb();
}

bool isDarkWindow(const QPalette& palette) {
  return qGray(activeRgb(palette, QPalette::Window)) < qGray(activeRgb(palette, QPalette::WindowText));
}

// The same rule as lookSchemeFor in platform/, which this library cannot include.
bool isHighContrastWindow(const QPalette& palette) {
  const QRgb back = activeRgb(palette, QPalette::Window);
  if (back != 0xff000000 && back != 0xffffffff) return false;
  const QRgb fore = back ^ 0x00ffffff;
  return activeRgb(palette, QPalette::WindowText) == fore && activeRgb(palette, QPalette::Base) == back &&
         activeRgb(palette, QPalette::Text) == fore && activeRgb(palette, QPalette::Button) == back &&
         activeRgb(palette, QPalette::ButtonText) == fore;
}

// Dark and coloured parts take the ink, white ones the paper.
QImage inTwoColors(const QImage& picture, const QColor& ink, const QColor& paper) {
  QImage result = picture.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < result.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
    for (int x = 0; x < result.width(); ++x) {
      const int least = qMin(qRed(line[x]), qMin(qGreen(line[x]), qBlue(line[x])));
      const int share = qMax(0, least - kInkLimit);
      const auto mixed = [share](int from, int to) { return from + (to - from) * share / (255 - kInkLimit); };
      line[x] = qRgba(mixed(ink.red(), paper.red()), mixed(ink.green(), paper.green()),
                      mixed(ink.blue(), paper.blue()), qAlpha(line[x]));
    }
  }
  return result;
}

QPalette paletteOfDevice(const QPainter& painter) {
  const QPaintDevice* device = painter.device();
  if (device && device->devType() == QInternal::Widget) return static_cast<const QWidget*>(device)->palette();
  return QGuiApplication::palette();
}

void drawPicture(QPainter* painter, const QRect& rect, const QImage& picture, QIcon::Mode mode) {
  if (picture.isNull()) return;
  painter->save();
  painter->setRenderHint(QPainter::SmoothPixmapTransform);
  if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * kDisabledOpacity);
  painter->drawImage(rect, picture);
  painter->restore();
}

// The pictures of one image; the 2x ones and the dark ones may be missing.
struct KZImagePictures {
  QImage light;
  QImage light2x;
  QImage dark;
  QImage dark2x;
};

// Chooses, or colours, a picture when it is drawn. The palette is that of the widget that is drawn on; an
// icon that is turned into a pixmap, away from any widget, uses the application's.
class KZImageEngine final : public QIconEngine {
 public:
  explicit KZImageEngine(std::shared_ptr<const KZImagePictures> pictures) : m_pictures(std::move(pictures)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal scale = painter->device() ? painter->device()->devicePixelRatio() : 1;
    drawPicture(painter, rect, picture(paletteOfDevice(*painter), state, rect.width() * scale), mode);
  }

  // The size is in pixels, also for a dense screen: Qt's own scaledPixmap, which asks with its scale, ends
  // here.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    drawPicture(&painter, QRect(QPoint(), size), picture(QGuiApplication::palette(), state, size.width()),
                mode);
    return result;
  }

  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {m_pictures->light.size()}; }
  QIconEngine* clone() const override { return new KZImageEngine(m_pictures); }

 private:
  QImage picture(const QPalette& palette, QIcon::State state, qreal drawnPixels) const {
    const bool isDetailed = drawnPixels > m_pictures->light.width() && !m_pictures->light2x.isNull();
    const QImage& light = isDetailed ? m_pictures->light2x : m_pictures->light;
    if (state == QIcon::On || isHighContrastWindow(palette)) {
      const QPalette::ColorRole ink = state == QIcon::On ? QPalette::Highlight : QPalette::WindowText;
      return inTwoColors(light, palette.color(QPalette::Active, ink),
                         palette.color(QPalette::Active, QPalette::Window));
    }
    const QImage& dark = isDetailed && !m_pictures->dark2x.isNull() ? m_pictures->dark2x : m_pictures->dark;
    return isDarkWindow(palette) && !dark.isNull() ? dark : light;
  }

  std::shared_ptr<const KZImagePictures> m_pictures;
};

}  // namespace

KZRetinaHelper& KZRetinaHelper::shareInstance() {
  // Never destroyed: icons may be used until the last window is destroyed.
  static KZRetinaHelper* const instance = new KZRetinaHelper;
  return *instance;
}

QIcon KZRetinaHelper::newPNGImageInBundle(const QString& folder, const QString& name) {
  if (name.isEmpty()) return {};
  const QString path = folder + QLatin1Char('/') + name;
  const auto known = m_icons.constFind(path);
  if (known != m_icons.cend()) return *known;

  const auto load = [&path](const char* ending) {
    QImage picture(path + QLatin1String(ending));
    picture.setDevicePixelRatio(1);
    return picture;
  };
  const KZImagePictures pictures{.light = load(".png"),
                                 .light2x = load("@2x.png"),
                                 .dark = load("_dark.png"),
                                 .dark2x = load("_dark@2x.png")};
  if (pictures.light.isNull()) return {};
  QIcon icon(new KZImageEngine(std::make_shared<const KZImagePictures>(pictures)));
  m_icons.insert(path, icon);
  return icon;
}
