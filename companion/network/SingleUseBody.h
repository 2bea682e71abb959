#pragma once

#include <QByteArray>
#include <QIODevice>

// The body of a request that can be read once, so that the network cannot send it again behind our back.
class SingleUseBody final : public QIODevice {
 public:
  explicit SingleUseBody(QByteArray body) : m_body(std::move(body)) {
    static_cast<void>(open(QIODevice::ReadOnly | QIODevice::Unbuffered));
  }

  bool isSequential() const override { return true; }
  bool reset() override { return false; }
  qint64 bytesAvailable() const override { return m_body.size() - m_read; }

 protected:
  qint64 readData(char* data, qint64 size) override;
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
  const QByteArray m_body;
  qint64 m_read = 0;
};
