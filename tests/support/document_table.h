// Tables in documents that tests measure: the text around them is written by people.
#pragma once
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace quordsp::test {

// The table below this heading becomes another one.
inline void replaceTable(const std::string& path, const std::string& heading, const std::string& table)
{
    std::ifstream in{path, std::ios::binary};
    std::string text = (std::stringstream{} << in.rdbuf()).str();
    const std::size_t title = text.find('\n' + heading + '\n');
    const std::size_t begin = title == std::string::npos ? title : text.find("\n|", title);
    if (begin == std::string::npos)
        throw std::runtime_error{path + " has no table below '" + heading + "'"};
    std::size_t end = begin + 1;
    while (text[end] == '|')
        end = text.find('\n', end) + 1;
    text.replace(begin + 1, end - begin - 1, table);
    std::ofstream{path, std::ios::binary} << text;
}

} // namespace quordsp::test
