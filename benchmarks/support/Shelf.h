#pragma once

#include <map>
#include <memory>
#include <string>

namespace Bench {

/** Designs are slow to create, so each is created once. Those of one family are kept until another one is requested:
 *  all of them at once would not fit into memory. */
class Shelf
{
public:
    /** The design of a family and size; @p make creates it, as a `std::unique_ptr`. */
    template <class Design, class Make>
    Design& Get(const std::string& family, int size, Make make)
    {
        if (family != keptFamily) {
            designs.clear();
            keptFamily = family;
        }
        std::shared_ptr<void>& design = designs[size];
        if (!design) {
            design = std::shared_ptr<Design>(make());
        }
        return *static_cast<Design*>(design.get());
    }

private:
    std::string keptFamily;
    std::map<int, std::shared_ptr<void>> designs;
};

} // namespace Bench
