#pragma once

/// The names of Boost.JSON that public headers mention. Only a caller who makes or looks at such values needs Boost
/// itself (1.81), and then includes <boost/json.hpp>: its functions come from OrtinFoundation.
namespace boost::json {
class string;
class value;
} // namespace boost::json
