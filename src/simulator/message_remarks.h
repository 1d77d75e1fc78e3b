// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include "simulator/accepted_message.h"

namespace parlexo::simulator {

/// `message` in the lines that the log shows of it: what it is, to whom it goes, its text as a person reads
/// it, its file.
[[nodiscard]] QStringList remarksOn(const AcceptedMessage& message);

}  // namespace parlexo::simulator
