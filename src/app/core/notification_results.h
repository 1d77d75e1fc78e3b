// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/notifier.h"

namespace parlexo {

/// The answers that a message gets without a button: rules of the notification dialog that need no window.

/// The answer of a message that the user asked not to see again: No when its button bits offer a way out
/// that is not Ok (1, 2 and 3), otherwise Ok, also for a plain yes/no question.
[[nodiscard]] MessageResult suppressedResult(unsigned style);

/// The answer when the dialog is closed by Escape or by its close box: the mildest button on offer.
[[nodiscard]] MessageResult closeResult(unsigned style);

}  // namespace parlexo
