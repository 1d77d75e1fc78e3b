// SPDX-License-Identifier: GPL-3.0-or-later
#include "contacts/item_index_cache.h"

namespace parlexo {

std::shared_ptr<ItemIndex> ItemIndexCache::find(const QString& path) const {
  const auto found = indexes_.find(path);
  return found == indexes_.end() ? nullptr : found->second;
}

std::shared_ptr<ItemIndex> ItemIndexCache::create(const QString& path) {
  auto index = std::make_shared<ItemIndex>();
  indexes_[path] = index;
  return index;
}

bool ItemIndexCache::dropItemIndex(const QString& path) {
  indexes_.erase(path);
  return true;
}

bool ItemIndexCache::dropAllItemIndexes() {
  indexes_.clear();
  return true;
}

}  // namespace parlexo
