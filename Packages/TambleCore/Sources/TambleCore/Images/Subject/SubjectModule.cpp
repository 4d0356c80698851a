#include "ContrastSubjectMask.h"

extern "C" const tamble::SubjectMask* tambleSubjectMask() {
    static const tamble::ContrastSubjectMask mask;
    return &mask;
}
