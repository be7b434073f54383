// Rows of parameterised tests, named so that one row runs on its own
// (--gtest_filter='*/dotdot_entry') and is shown by its name.
#ifndef DW_TESTS_SUPPORT_NAMED_ROWS_H
#define DW_TESTS_SUPPORT_NAMED_ROWS_H

#include <ostream>
#include <string>

namespace dwtest {

// The first member of a row: struct Case : dwtest::Row { int more; }.
struct Row {
    const char* name;
};

inline std::ostream& operator<<(std::ostream& out, const Row& row)
{
    return out << row.name;
}

// The name generator of INSTANTIATE_TEST_SUITE_P.
struct RowName {
    template <typename Info> std::string operator()(const Info& info) const { return info.param.name; }
};

}  // namespace dwtest

#endif
