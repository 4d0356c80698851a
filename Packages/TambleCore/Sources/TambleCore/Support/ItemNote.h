#pragma once

#include <boost/describe.hpp>

namespace tamble {

/// Something to know about an item that was saved.
enum class ItemNote {
    originalKeptNoBin,  ///< the original could not go to the Bin: it was kept and the new file saved beside
                        ///< it
    existingKeptNoBin,  ///< the clashing file could not go to the Bin: the new file was saved with a number
    sealBroken,         ///< the original carries a digital signature, which does not hold for the new file
};
BOOST_DESCRIBE_ENUM(ItemNote, originalKeptNoBin, existingKeptNoBin, sealBroken)

}  // namespace tamble
