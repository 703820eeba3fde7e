// Linked into every test: the program under test, and each that it starts, reads the zone database
// of the tests, whatever edition the machine has. A test of the machine's own unsets TZDIR.
#include <QByteArray>

namespace {

[[maybe_unused]] const bool chosen = qputenv("TZDIR", TEMPOLARK_TEST_ZONES);

}  // namespace
