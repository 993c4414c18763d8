#pragma once

namespace trxctl {

/// Whether this process can reach a session bus. Without one nothing is announced; the library
/// itself stays silent about it.
bool HasSessionBus();

}  // namespace trxctl
