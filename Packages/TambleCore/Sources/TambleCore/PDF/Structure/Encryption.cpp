#include <TambleCore/PDF/Structure/Encryption.h>

namespace tamble::pdf {

void encrypt(QPDFWriter& writer, const std::string& password) {
    writer.setR6EncryptionParameters(password.c_str(), password.c_str(), true, true, true, true, true, true,
                                     qpdf_r3p_full, true);
}

}  // namespace tamble::pdf
