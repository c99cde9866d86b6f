#pragma once

#include <functional>

namespace ContractHost {

/** Called as the last step of every operation that changes something, after the change. Empty for nothing. */
extern std::function<void()> CalledOut;

/** Calls it. It may do whatever an application may do meanwhile, short of deleting items. */
void CallOut();

} // namespace ContractHost
