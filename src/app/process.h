#pragma once

namespace parlexo {

/// Settings of the whole process that must hold before anything else: a connection that the other side has
/// closed must end a call with an error, never the program with a signal.
void prepareProcess();

}  // namespace parlexo
