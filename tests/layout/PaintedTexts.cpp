#include "tests/layout/PaintedTexts.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QWidget>

namespace {

// Keeps texts only.
class TextEngine final : public QPaintEngine {
 public:
  explicit TextEngine(const QSize& size) : QPaintEngine(AllFeatures), m_area(QPoint(), size) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawPath(const QPainterPath&) override {}

  void updateState(const QPaintEngineState& changed) override {
    if (changed.state() & DirtyTransform) m_transform = changed.transform();
    if (changed.state() & DirtyPen) m_pen = changed.pen();
  }

  void drawTextItem(const QPointF& place, const QTextItem& item) override {
    const QString text = item.text();
    if (text.trimmed().isEmpty()) return;
    const QPointF at = m_transform.map(place);
    const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(text).translated(at);
    const QRectF clip = systemClip().isEmpty() ? m_area : QRectF(systemClip().boundingRect());
    // A selected text is painted over the same text.
    if (!m_texts.isEmpty() && m_texts.last().left == at.x() && m_texts.last().baseline == at.y()) {
      m_texts.removeLast();
    }
    // A text in several fonts comes in parts.
    if (!m_texts.isEmpty() && m_texts.last().clip == clip && m_texts.last().baseline == at.y() &&
        qAbs(m_texts.last().right - at.x()) < 1) {
      PaintedText& whole = m_texts.last();
      whole.text += text;
      whole.right = at.x() + item.width();
      whole.ink |= ink;
      return;
    }
    m_texts.append({.text = text,
                    .font = item.font(),
                    .color = m_pen.color(),
                    .left = at.x(),
                    .right = at.x() + item.width(),
                    .baseline = at.y(),
                    .ink = ink,
                    .clip = clip});
  }

  QList<PaintedText> m_texts;

 private:
  QRectF m_area;
  QTransform m_transform;
  QPen m_pen;
};

class TextDevice final : public QPaintDevice {
 public:
  explicit TextDevice(const QSize& size) : m_engine(size), m_size(size) {}
  QPaintEngine* paintEngine() const override { return &m_engine; }
  const QList<PaintedText>& texts() const { return m_engine.m_texts; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
      case PdmWidthMM:
        return m_size.width();
      case PdmHeight:
      case PdmHeightMM:
        return m_size.height();
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return 96;
      case PdmNumColors:
        return 0;
      case PdmDepth:
        return 32;
      case PdmDevicePixelRatio:
        return 1;
      case PdmDevicePixelRatioScaled:
        return int(devicePixelRatioFScale());
      default:
        return QPaintDevice::metric(metric);
    }
  }

 private:
  mutable TextEngine m_engine;
  QSize m_size;
};

}  // namespace

QList<PaintedText> paintedTexts(QWidget& view) {
  TextDevice device(view.size());
  view.render(&device);
  return device.texts();
}
