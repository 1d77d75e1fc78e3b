#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QFile>

#include "contacts/shared_file.h"

namespace parlexo {

namespace {

constexpr int noHandle = -1;
// How often a file that was replaced between opening and locking is opened again at once; after that it
// counts as in use.
constexpr int replacementTries = 20;
constexpr mode_t newFilePermissions = 0666;

// Repeats a system call that a signal interrupted.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// Without O_NONBLOCK a pipe in the place of the file would hold the program until somebody writes into it.
constexpr int commonFlags = O_CLOEXEC | O_NONBLOCK;

int openFlags(SharedFile::Mode mode) {
  switch (mode) {
    case SharedFile::Mode::Read:
    case SharedFile::Mode::Create:
      return O_RDONLY | commonFlags;
    case SharedFile::Mode::Write:
    case SharedFile::Mode::Erase:
    case SharedFile::Mode::Remove:
      return O_RDWR | O_DSYNC | commonFlags;
  }
  return O_RDONLY | commonFlags;
}

// An SMB server answers so when a program on Windows holds the file.
bool isHeldByOthers(int error) {
  return error == EBUSY || error == ETXTBSY || error == EWOULDBLOCK;
}

SharedFile::OpenResult failure(int error) {
  return isHeldByOthers(error) ? SharedFile::OpenResult::SharingViolation : SharedFile::OpenResult::Failed;
}

// Asking for creation of a file that exists is refused in some shared folders even to those who may write
// it, so creation is asked for only when there is none.
int openOrCreate(const char* path, SharedFile::Mode mode) {
  const int flags = openFlags(mode);
  const int handle = uninterrupted([=] { return ::open(path, flags); });
  if (handle != noHandle || errno != ENOENT || mode == SharedFile::Mode::Remove) return handle;
  return uninterrupted([=] { return ::open(path, flags | O_CREAT, newFilePermissions); });
}

// Whoever waited for the lock may hold a file that was meanwhile deleted; a write into it would be lost.
bool isAt(const char* path, const struct stat& opened) {
  struct stat atPath {};
  return ::stat(path, &atPath) == 0 && opened.st_dev == atPath.st_dev && opened.st_ino == atPath.st_ino;
}

}  // namespace

SharedFile::~SharedFile() {
  close();
}

SharedFile::OpenResult SharedFile::open(const QString& path, Mode mode) {
  close();
  path_ = QFile::encodeName(path);
  mode_ = mode;
  // The system would end the path there and open another file.
  if (path_.contains('\0')) return OpenResult::Failed;
  for (int tries = 0; tries < replacementTries; ++tries) {
    const std::optional<OpenResult> result = openOnce();
    if (result) return *result;
  }
  close();
  return OpenResult::SharingViolation;
}

void SharedFile::close() {
  if (handle_ != noHandle) ::close(handle_);
  handle_ = noHandle;
}

std::optional<SharedFile::OpenResult> SharedFile::openOnce() {
  close();
  handle_ = openOrCreate(path_.constData(), mode_);
  if (handle_ == noHandle) return failure(errno);
  const OpenResult locked = lock();
  if (locked != OpenResult::Opened) {
    close();
    return locked;
  }
  struct stat opened {};
  if (::fstat(handle_, &opened) != 0 || !S_ISREG(opened.st_mode)) {
    close();
    return OpenResult::Failed;
  }
  if (mode_ != Mode::Create && !isAt(path_.constData(), opened)) return std::nullopt;
  return OpenResult::Opened;
}

SharedFile::OpenResult SharedFile::lock() const {
  if (mode_ == Mode::Create) return OpenResult::Opened;
  const int kind = mode_ == Mode::Read ? LOCK_SH : LOCK_EX;
  const int result = uninterrupted([&] { return ::flock(handle_, kind | LOCK_NB); });
  if (result == 0) return OpenResult::Opened;
  // Where the lock is a server's, a refusal may come back in these words.
  return errno == EACCES ? OpenResult::SharingViolation : failure(errno);
}

std::optional<qint64> SharedFile::size() const {
  struct stat status {};
  if (::fstat(handle_, &status) != 0) return std::nullopt;
  return status.st_size;
}

bool SharedFile::seek(qint64 position) {
  return ::lseek(handle_, position, SEEK_SET) == position;
}

std::optional<qint64> SharedFile::read(char* buffer, qint64 length) {
  qint64 done = 0;
  while (done < length) {
    const auto count = uninterrupted(
        [&] { return ::read(handle_, buffer + done, static_cast<std::size_t>(length - done)); });
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    done += count;
  }
  return done;
}

bool SharedFile::write(QByteArrayView bytes) {
  const std::optional<qint64> before = size();
  if (!before) return false;
  while (!bytes.isEmpty()) {
    const auto count =
        uninterrupted([&] { return ::write(handle_, bytes.data(), static_cast<std::size_t>(bytes.size())); });
    if (count <= 0) {
      // Nothing better can be done when cutting back fails too: the caller reports the failed write.
      if (size() > before && ::ftruncate(handle_, *before) != 0) return false;
      return false;
    }
    bytes = bytes.sliced(count);
  }
  return true;
}

bool SharedFile::remove() {
  return ::unlink(path_.constData()) == 0;
}

}  // namespace parlexo
