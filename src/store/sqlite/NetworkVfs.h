#pragma once

namespace fidaleon::store {

/// Name of a way to reach files, for SQLite, that has no shared memory: a database in the log
/// cannot be opened by it but by whoever has it alone. For disks on other machines, where another
/// desk, to which the disk is its own, may take up the log under one that is open.
const char* networkVfs();

}  // namespace fidaleon::store
