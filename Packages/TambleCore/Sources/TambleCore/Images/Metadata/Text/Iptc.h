#pragma once

#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble::iptc {

/// IPTC-IIM records without the datasets that say where: content location, city, sub-location, province or
/// state, country code and name. Whatever follows a damaged dataset is left out.
Bytes withoutLocation(ByteView records);

/// The dataset numbers of record 2 that say where.
bool isLocation(unsigned dataset);

/// One dataset: tag marker, record, number, length and value.
struct Dataset {
    unsigned record = 0;
    unsigned number = 0;
    ByteView whole;
};

/// Those before the first damaged one.
std::vector<Dataset> datasets(ByteView records);

}  // namespace tamble::iptc
