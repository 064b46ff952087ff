// Boost.JSON itself, which this library exports: compiled here and nowhere else.
#include <boost/json/src.hpp>
