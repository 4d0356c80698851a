#pragma once

#include <TambleCore/Support/WorkContext.h>

#include <vector>

#include <qpdf/QPDF.hh>

namespace tamble::pdf {

/// Lets one object stand for all that are equal to it: streams with the same dictionary and data, and those
/// kinds of objects that mean the same wherever they are, such as fonts and colour spaces. Pages,
/// annotations, layers and the like stay apart however alike they are. Answers what can be reached then.
std::vector<QPDFObjectHandle> mergeDuplicates(QPDF& document, const WorkContext& context);

}  // namespace tamble::pdf
