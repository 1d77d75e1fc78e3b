// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/secret.h"

#include "base/code_page.h"

namespace parlexo {

namespace {

// Non-const access to shared memory would detach, and so wipe a fresh copy.
template <class Container>
void wipeUnshared(Container& container) {
  if (container.isDetached()) wipe(std::as_writable_bytes(std::span(container)));
  container.resize(0);
}

}  // namespace

void wipe(std::span<std::byte> memory) {
  volatile std::byte* const bytes = memory.data();
  for (std::size_t i = 0; i < memory.size(); ++i) bytes[i] = std::byte{};
}

void wipe(std::string& text) {
  wipe(std::as_writable_bytes(std::span(text)));
  text.clear();
}

void wipe(QByteArray& bytes) {
  wipeUnshared(bytes);
}

void wipe(QString& text) {
  wipeUnshared(text);
}

Secret::Secret(const QString& text) {
  QByteArray bytes = toCodePage(text);
  bytes_ = std::shared_ptr<std::string>(
      new std::string(bytes.constData(), static_cast<std::size_t>(bytes.size())), [](std::string* owned) {
        wipe(*owned);
        delete owned;
      });
  wipe(bytes);
}

}  // namespace parlexo
