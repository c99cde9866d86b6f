#pragma once

#include <contract/CalledOut.h>

#include <type_traits>

namespace ContractHost {

/** What every setter does. */
template <class Value>
void Store(Value& field, const std::common_type_t<Value>& value)
{
    field = value;
    CallOut();
}

} // namespace ContractHost
