#pragma once
// The items of a paged walk, kept page by page and appended to the caller's list when the
// walk ends (or stops on a failure). Appending each page as it comes would move the items
// already gathered every time the list grows; this way each item moves once, into a list
// set aside at its final size.
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace velmora {

template <typename Item>
class PagedItems {
public:
    explicit PagedItems(std::vector<Item>& output) : m_output(output) {}
    PagedItems(const PagedItems&) = delete;
    PagedItems& operator=(const PagedItems&) = delete;

    // Takes the items of one page; `page` is left empty.
    void add(std::vector<Item>& page)
    {
        if (page.empty()) {
            return;
        }
        m_count += page.size();
        m_pages.push_back(std::move(page));
        page.clear();
    }

    // Appends every page taken so far to the output, in order.
    void flush()
    {
        if (m_pages.empty()) {
            return;
        }
        const std::size_t total = m_output.size() + m_count;
        std::size_t first = 0;
        if (m_output.empty()) {
            // The first page's own block becomes the list: one page costs no move at all.
            m_output = std::move(m_pages.front());
            first = 1;
        }
        m_output.reserve(total);
        for (std::size_t i = first; i < m_pages.size(); ++i) {
            m_output.insert(m_output.end(), std::make_move_iterator(m_pages[i].begin()),
                            std::make_move_iterator(m_pages[i].end()));
        }
        m_pages.clear();
        m_count = 0;
    }

private:
    std::vector<Item>& m_output;
    std::vector<std::vector<Item>> m_pages;
    std::size_t m_count = 0; // items in m_pages
};

} // namespace velmora
