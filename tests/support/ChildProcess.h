// Runs a part of a test in a child process, which may crash, drop its rights or change its
// environment without harm to other tests, and whose standard error can be read.
#pragma once

#include <functional>

namespace trxtest {

/// Runs a function in a forked child. Expects that it returns within two minutes, without a failed
/// expectation and without output on standard error. The child prints what fails in it.
void ExpectQuietSuccess(const std::function<void()> &function);

/// Takes all privileges from this process, a child. Does nothing when it has none.
void BecomeOrdinaryUser();

/// Gives this process, a child, a user that is not among the system's accounts.
void BecomeUserWithoutAccount();

}  // namespace trxtest
