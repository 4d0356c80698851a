#include <TambleCore/Images/Metadata/Containers/ByteAccess.h>

namespace tamble {

void append(Bytes& bytes, ByteView more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

}  // namespace tamble
