#include <contract/CalledOut.h>

std::function<void()> ContractHost::CalledOut;

void ContractHost::CallOut()
{
    if (const std::function<void()> hook = CalledOut) { // A copy: it may be exchanged from within.
        hook();
    }
}
