// Runs a part of a test in a process of its own: one that may crash, give up its rights or change
// its environment without harm to the other tests, and whose standard error can be read.
#pragma once

#include <functional>

namespace trxtest {

/// Runs a function in a forked child and expects that it comes back without a failed expectation,
/// within two minutes and without a byte on standard error. What fails in the child is printed by
/// it.
void ExpectQuietSuccess(const std::function<void()> &function);

/// Makes this process, a child, one without any privilege. Nothing to do when it has none.
void BecomeOrdinaryUser();

/// Makes this process, a child, one of a user whom the system's list of accounts does not know.
void BecomeUserWithoutAccount();

}  // namespace trxtest
