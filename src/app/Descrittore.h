#pragma once

// A POSIX file descriptor closed when it goes out of scope, for the readers and writers of users'
// files that need what streams hide: opening without blocking, fstat, fsync.

#include <unistd.h>

namespace lottolab::app {

class Descrittore {
 public:
  explicit Descrittore(int fd) : m_fd(fd) {}
  ~Descrittore() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descrittore(const Descrittore&) = delete;
  Descrittore& operator=(const Descrittore&) = delete;

  // -1 when the open failed.
  int Fd() const { return m_fd; }
  // Closing can report a write the kernel deferred, so its result counts: 0 or -1 with errno.
  int Chiudi() {
    int esito = ::close(m_fd);
    m_fd = -1;
    return esito;
  }

 private:
  int m_fd;
};

}  // namespace lottolab::app
