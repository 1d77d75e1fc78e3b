// SPDX-License-Identifier: GPL-3.0-or-later
#include <windows.h>

#include <QDir>

#include "contacts/shared_file.h"

namespace parlexo {

namespace {

struct OpenMode {
  DWORD access;
  DWORD share;
  DWORD disposition = OPEN_ALWAYS;
};

OpenMode openMode(SharedFile::Mode mode) {
  constexpr DWORD readAndWrite = GENERIC_READ | GENERIC_WRITE;
  switch (mode) {
    case SharedFile::Mode::Read:
      return {GENERIC_READ, FILE_SHARE_READ};
    case SharedFile::Mode::Write:
      return {readAndWrite, 0};
    case SharedFile::Mode::Erase:
      return {readAndWrite, FILE_SHARE_READ};
    case SharedFile::Mode::Create:
      return {GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE};
    case SharedFile::Mode::Remove:
      return {GENERIC_READ | DELETE, 0, OPEN_EXISTING};
  }
  return {GENERIC_READ, FILE_SHARE_READ};
}

HANDLE toHandle(std::intptr_t number) {
  return reinterpret_cast<HANDLE>(number);
}

// Programs on other systems that access the folder over SMB can't set a share mode. While reading they lock
// the whole file instead. Mode::Erase must fail then, although its share mode allows readers.
bool isLockedElsewhere(HANDLE handle) {
  OVERLAPPED fromTheStart{};
  constexpr DWORD how = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
  if (LockFileEx(handle, how, 0, MAXDWORD, MAXLONG, &fromTheStart)) return false;
  return GetLastError() == ERROR_LOCK_VIOLATION;
}

// An incomplete record would misalign the following ones.
void cutBack(HANDLE handle, qint64 length) {
  LARGE_INTEGER end;
  end.QuadPart = length;
  if (SetFilePointerEx(handle, end, nullptr, FILE_BEGIN)) SetEndOfFile(handle);
}

}  // namespace

SharedFile::~SharedFile() {
  close();
}

SharedFile::OpenResult SharedFile::open(const QString& path, Mode mode) {
  close();
  // The system would truncate the path at the zero character and open a different file.
  if (path.contains(QChar::Null)) return OpenResult::Failed;
  const auto native = QDir::toNativeSeparators(path).toStdWString();
  const OpenMode how = openMode(mode);
  const HANDLE handle = CreateFileW(native.c_str(), how.access, how.share, nullptr, how.disposition,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_WRITE_THROUGH, nullptr);
  if (handle == INVALID_HANDLE_VALUE)
    return GetLastError() == ERROR_SHARING_VIOLATION ? OpenResult::SharingViolation : OpenResult::Failed;
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  // Names such as "con" and "nul" open devices in any folder.
  const bool isFile = GetFileType(handle) == FILE_TYPE_DISK;
  const bool isInUse = isFile && mode == Mode::Erase && isLockedElsewhere(handle);
  if (isFile && !isInUse) return OpenResult::Opened;
  close();
  return isInUse ? OpenResult::SharingViolation : OpenResult::Failed;
}

void SharedFile::close() {
  if (handle_ != noHandle) CloseHandle(toHandle(handle_));
  handle_ = noHandle;
}

std::optional<qint64> SharedFile::size() const {
  LARGE_INTEGER length;
  if (!GetFileSizeEx(toHandle(handle_), &length)) return std::nullopt;
  return length.QuadPart;
}

bool SharedFile::seek(qint64 position) {
  LARGE_INTEGER wanted;
  wanted.QuadPart = position;
  return SetFilePointerEx(toHandle(handle_), wanted, nullptr, FILE_BEGIN) != 0;
}

std::optional<qint64> SharedFile::read(char* buffer, qint64 length) {
  qint64 done = 0;
  while (done < length) {
    DWORD count = 0;
    if (!ReadFile(toHandle(handle_), buffer + done, static_cast<DWORD>(length - done), &count, nullptr))
      return std::nullopt;
    if (count == 0) break;
    done += count;
  }
  return done;
}

bool SharedFile::write(QByteArrayView bytes) {
  const std::optional<qint64> before = size();
  if (!before) return false;
  DWORD count = 0;
  const auto wanted = static_cast<DWORD>(bytes.size());
  const bool done = WriteFile(toHandle(handle_), bytes.data(), wanted, &count, nullptr) && count == wanted;
  if (!done && size() > before) cutBack(toHandle(handle_), *before);
  return done;
}

// The file is deleted when its last handle is closed, which is this one: it was opened exclusively.
bool SharedFile::remove() {
  FILE_DISPOSITION_INFO disposition{TRUE};
  return SetFileInformationByHandle(toHandle(handle_), FileDispositionInfo, &disposition,
                                    sizeof disposition) != 0;
}

}  // namespace parlexo
