#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QtGlobal>
#include <csignal>

// Makes the process an ordinary user while it exists: permissions do not bind root, which build machines use.
class OrdinaryUser final {
 public:
  OrdinaryUser() : m_before(::geteuid()) {
    if (m_before == 0) {
      EXPECT_EQ(::seteuid(65534), 0);
    }
  }
  ~OrdinaryUser() { EXPECT_EQ(::seteuid(m_before), 0); }
  Q_DISABLE_COPY_MOVE(OrdinaryUser)

 private:
  const uid_t m_before;
};

// Limits the size of files, like a full disk.
class FullDisk final {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit = {bytes, m_before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }
  Q_DISABLE_COPY_MOVE(FullDisk)

 private:
  rlimit m_before = {};
};
