// For clang-tidy and fuzzers, in place of libqpdf's own header: clang cannot read a vector of an incomplete type, as it
// is declared there, with GCC 12's library in C++20. The project uses nothing of it.
#include <qpdf/DLL.h>
#include <qpdf/InputSource.hh>
#include <qpdf/PointerHolder.hh>
#include <qpdf/Types.h>

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#define vector list
#include_next <qpdf/JSON.hh>
#undef vector
