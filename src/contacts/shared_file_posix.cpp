// SPDX-License-Identifier: GPL-3.0-or-later
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include <QFile>

#include "contacts/shared_file.h"

namespace parlexo {

namespace {

constexpr int noDescriptor = -1;
// How often a file that was replaced between opening and locking is reopened before it counts as in use.
constexpr int replacementTries = 20;
constexpr mode_t newFilePermissions = 0666;

// Repeats a system call that a signal interrupted.
template <typename Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// Without O_NONBLOCK, opening a pipe would block until another process writes to it.
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

// Errors of SMB servers if a program on Windows has the file open.
bool isHeldByOthers(int error) {
  return error == EBUSY || error == ETXTBSY || error == EWOULDBLOCK;
}

SharedFile::OpenResult failure(int error) {
  return isHeldByOthers(error) ? SharedFile::OpenResult::SharingViolation : SharedFile::OpenResult::Failed;
}

// An SMB server keeps a removed file until the last user has closed it. Until then the file can be neither
// opened nor created: it appears missing although its folder exists. The same is true of a dangling link,
// which is excluded here.
bool isBeingRemoved(const QByteArray& path) {
  struct stat status {};
  const QByteArray folder = path.left(path.lastIndexOf('/') + 1) + '.';
  if (::stat(folder.constData(), &status) != 0) return false;
  return ::lstat(path.constData(), &status) != 0 || !S_ISLNK(status.st_mode);
}

// Some shared folders refuse O_CREAT for an existing file even to users who may write to it. O_CREAT is
// therefore only set if the file is missing.
int openOrCreate(const QByteArray& path, SharedFile::Mode mode) {
  const int flags = openFlags(mode);
  const int handle = uninterrupted([&] { return ::open(path.constData(), flags); });
  if (handle != noDescriptor || errno != ENOENT || mode == SharedFile::Mode::Remove) return handle;
  const int created =
      uninterrupted([&] { return ::open(path.constData(), flags | O_CREAT, newFilePermissions); });
  if (created == noDescriptor && errno == ENOENT) errno = isBeingRemoved(path) ? EBUSY : ENOENT;
  return created;
}

// The file may have been deleted while this program waited for the lock; a write to it would be lost. Calling
// stat() on the path is not enough, because an SMB mount answers from its cache. It asks the server when a
// file is opened, unless it is already open with the same flags; hence flags that are not used elsewhere.
bool isAt(const char* path, const struct stat& opened) {
  const int handle = uninterrupted([=] { return ::open(path, O_RDONLY | O_SYNC | commonFlags); });
  if (handle == noDescriptor) return false;
  struct stat atPath {};
  const bool found = ::fstat(handle, &atPath) == 0;
  ::close(handle);
  return found && opened.st_dev == atPath.st_dev && opened.st_ino == atPath.st_ino;
}

SharedFile::OpenResult lock(int handle, SharedFile::Mode mode) {
  if (mode == SharedFile::Mode::Create) return SharedFile::OpenResult::Opened;
  const int kind = mode == SharedFile::Mode::Read ? LOCK_SH : LOCK_EX;
  const int result = uninterrupted([=] { return ::flock(handle, kind | LOCK_NB); });
  if (result == 0) return SharedFile::OpenResult::Opened;
  // Some servers refuse a lock with this error.
  return errno == EACCES ? SharedFile::OpenResult::SharingViolation : failure(errno);
}

// Returns nullopt if the path no longer refers to the opened file.
std::optional<SharedFile::OpenResult> lockFile(int handle, const char* path, SharedFile::Mode mode) {
  const SharedFile::OpenResult locked = lock(handle, mode);
  if (locked != SharedFile::OpenResult::Opened) return locked;
  struct stat opened {};
  if (::fstat(handle, &opened) != 0 || !S_ISREG(opened.st_mode)) return SharedFile::OpenResult::Failed;
  if (mode != SharedFile::Mode::Create && !isAt(path, opened)) return std::nullopt;
  return SharedFile::OpenResult::Opened;
}

int descriptor(std::intptr_t handle) {
  return static_cast<int>(handle);
}

}  // namespace

SharedFile::~SharedFile() {
  close();
}

SharedFile::OpenResult SharedFile::open(const QString& path, Mode mode) {
  close();
  path_ = QFile::encodeName(path);
  // The system would truncate the path at the zero character and open a different file.
  if (path_.contains('\0')) return OpenResult::Failed;
  for (int tries = 0; tries < replacementTries; ++tries) {
    const int opened = openOrCreate(path_, mode);
    if (opened == noDescriptor) return failure(errno);
    handle_ = opened;
    const std::optional<OpenResult> result = lockFile(opened, path_.constData(), mode);
    if (result != OpenResult::Opened) close();
    if (result) return *result;
  }
  return OpenResult::SharingViolation;
}

void SharedFile::close() {
  if (handle_ != noHandle) ::close(descriptor(handle_));
  handle_ = noHandle;
}

std::optional<qint64> SharedFile::size() const {
  struct stat status {};
  if (::fstat(descriptor(handle_), &status) != 0) return std::nullopt;
  return status.st_size;
}

bool SharedFile::seek(qint64 position) {
  return ::lseek(descriptor(handle_), position, SEEK_SET) == position;
}

std::optional<qint64> SharedFile::read(char* buffer, qint64 length) {
  qint64 done = 0;
  while (done < length) {
    const auto count = uninterrupted(
        [&] { return ::read(descriptor(handle_), buffer + done, static_cast<std::size_t>(length - done)); });
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
    const auto count = uninterrupted(
        [&] { return ::write(descriptor(handle_), bytes.data(), static_cast<std::size_t>(bytes.size())); });
    if (count <= 0) {
      // The result is the same if truncating fails as well: the caller reports the failed write.
      if (size() > before && ::ftruncate(descriptor(handle_), *before) != 0) return false;
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
