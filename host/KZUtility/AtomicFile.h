#pragma once

#include <unistd.h>

#include <QByteArray>
#include <QString>
#include <utility>

// A file descriptor, closed with the object; -1 is none.
class Descriptor final {
 public:
  Descriptor() = default;
  explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
  Descriptor(Descriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
  }
  ~Descriptor() {
    if (m_descriptor >= 0) ::close(m_descriptor);
  }
  Q_DISABLE_COPY(Descriptor)

  int get() const { return m_descriptor; }
  bool isOpen() const { return m_descriptor >= 0; }

 private:
  int m_descriptor = -1;
};

// Replaces the file as a whole or not at all, readable by its owner alone; on the disk when this returns. The
// system's error number when it failed, else 0; a failure leaves no temporary file.
[[nodiscard]] int replaceFile(const QString& folder, const QString& name, const QByteArray& bytes);

// Removes what a process that died in the middle of `replaceFile` left behind.
void removeAbandonedFiles(const QString& folder, const QString& name);
