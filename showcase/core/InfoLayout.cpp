#include "InfoLayout.h"

#include <algorithm>

namespace Desk {

namespace {

/// Puts one part under the other.
class PageMaker {
public:
    PageMaker(const InfoSizes& sizes, const InfoTypefaces& typefaces)
        : m_sizes(sizes),
          m_typefaces(typefaces),
          m_top(sizes.margin) {
        m_page.width = sizes.width;
    }

    void add(const InfoPart& part) {
        switch (part.kind) {
        case InfoPart::Kind::Title:
            addText(InfoFont::Title, m_sizes.margin, part.text);
            break;
        case InfoPart::Kind::Heading:
            m_top += 2 * m_sizes.gap;
            addText(InfoFont::Heading, m_sizes.margin, part.text);
            m_page.rules.push_back(m_top);
            m_top += m_sizes.gap;
            break;
        case InfoPart::Kind::Text:
            addText(InfoFont::Text, m_sizes.margin, part.text);
            break;
        case InfoPart::Kind::Entry:
            addEntry(part);
            break;
        case InfoPart::Kind::Sample:
            addSample(part);
            break;
        }
        m_top += m_sizes.gap;
    }

    InfoPage finish() {
        m_page.height = m_top - m_sizes.gap + m_sizes.margin;
        std::stable_sort(m_page.lines.begin(), m_page.lines.end(),
                         [](const InfoLine& one, const InfoLine& other) { return one.top < other.top; });
        return std::move(m_page);
    }

private:
    void addText(InfoFont font, int left, const std::wstring& text) {
        m_top = addLines(font, left, m_sizes.width - m_sizes.margin, text);
    }

    /// Name and text begin side by side, and the longer one ends the part.
    void addEntry(const InfoPart& part) {
        const int textLeft = m_sizes.margin + m_sizes.names;
        const int nameEnd = addLines(InfoFont::Name, m_sizes.margin, textLeft - m_sizes.gap, part.name);
        addText(InfoFont::Text, textLeft, part.text);
        m_top = std::max(m_top, nameEnd);
    }

    void addSample(const InfoPart& part) {
        const int height = m_typefaces.lineHeight(InfoFont::Text);
        m_page.fields.push_back({m_sizes.margin, m_top, 3 * height, height, part.color});
        addText(InfoFont::Text, m_sizes.margin + m_sizes.names, part.text);
    }

    /// From the present top on; where they end.
    int addLines(InfoFont font, int left, int right, const std::wstring& text) {
        const int height = m_typefaces.lineHeight(font);
        const auto widthOf = [&](std::wstring_view words) { return m_typefaces.widthOf(font, words); };
        int top = m_top;
        for (std::wstring& line : wrapped(text, right - left, widthOf)) {
            m_page.lines.push_back({left, top, height, font, std::move(line)});
            top += height;
        }
        return top;
    }

    const InfoSizes& m_sizes;
    const InfoTypefaces& m_typefaces;
    InfoPage m_page;
    int m_top;
};

} // namespace

InfoPage layoutInfo(const std::vector<InfoPart>& parts, const InfoSizes& sizes, const InfoTypefaces& typefaces) {
    PageMaker maker(sizes, typefaces);
    for (const InfoPart& part : parts)
        maker.add(part);
    return maker.finish();
}

std::vector<std::wstring> wrapped(std::wstring_view text, int width,
                                  const std::function<int(std::wstring_view)>& widthOf) {
    std::vector<std::wstring> lines;
    std::wstring line;
    while (!text.empty()) {
        const std::wstring_view word = text.substr(0, text.find(L' '));
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        if (word.empty())
            continue;
        const std::wstring longer = line.empty() ? std::wstring(word) : line + L' ' + std::wstring(word);
        if (!line.empty() && widthOf(longer) > width) {
            lines.push_back(line);
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

} // namespace Desk
