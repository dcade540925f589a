// The list of properties, a file a family.
#ifndef TARN_TESTS_PROPERTIES_FAMILIES_H
#define TARN_TESTS_PROPERTIES_FAMILIES_H

#include "support/property.h"

namespace tarn::test {

Family ArithFamily();
Family LogicFamily();
Family CompareFamily();
Family SelectFamily();
Family AssignFamily();
Family RealFamily();
Family TextFamily();
Family ParseFamily();
Family LiteralFamily();

}  // namespace tarn::test

#endif  // TARN_TESTS_PROPERTIES_FAMILIES_H
