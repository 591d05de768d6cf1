// Writes the page on the conditions of yoga rules, docs/yoga-conditions.md, from their table.
#include "yoga/Catalogue.h"

#include <cstdio>
#include <string>

int main()
{
    const std::string page = kestrav::yoga::catalogueDocument();
    return std::fwrite(page.data(), 1, page.size(), stdout) == page.size() ? 0 : 1;
}
