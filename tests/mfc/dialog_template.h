#pragma once

#include <afxwin.h>

#include <cstring>
#include <string>
#include <vector>

/// A dialog template in memory; sizes are dialog units.
class DialogTemplate {
public:
    DialogTemplate(const wchar_t* title, DWORD style, short width, short height) {
        DLGTEMPLATE header{};
        header.style = style | DS_SETFONT;
        header.cx = width;
        header.cy = height;
        append(&header, sizeof(header));
        appendWord(0); // no menu
        appendWord(0); // the dialog manager's window class
        appendText(title);
        appendWord(8);
        appendText(L"MS Shell Dlg");
    }

    void addButton(const wchar_t* text, WORD id, short x, short y, short width, short height, DWORD style) {
        addItem(0x0080, text, id, x, y, width, height, style | WS_TABSTOP);
    }
    void addEdit(WORD id, short x, short y, short width, short height) {
        addItem(0x0081, L"", id, x, y, width, height, WS_TABSTOP | WS_BORDER);
    }

    LPCDLGTEMPLATE get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    void addItem(WORD classAtom, const wchar_t* text, WORD id, short x, short y, short width, short height,
                 DWORD style) {
        if (m_words.size() % 2 != 0) {
            appendWord(0); // items begin at a double word
        }
        DLGITEMTEMPLATE item{};
        item.style = style | WS_CHILD | WS_VISIBLE;
        item.x = x;
        item.y = y;
        item.cx = width;
        item.cy = height;
        item.id = id;
        append(&item, sizeof(item));
        appendWord(0xFFFF);
        appendWord(classAtom);
        appendText(text);
        appendWord(0); // no creation data
        DLGTEMPLATE header{};
        std::memcpy(&header, m_words.data(), sizeof(header));
        ++header.cdit;
        std::memcpy(m_words.data(), &header, sizeof(header));
    }

    void append(const void* data, std::size_t size) {
        const std::size_t at = m_words.size();
        m_words.resize(at + size / sizeof(WORD));
        std::memcpy(m_words.data() + at, data, size);
    }
    void appendWord(WORD word) { m_words.push_back(word); }
    void appendText(const std::wstring& text) {
        for (const wchar_t character : text) {
            appendWord(character);
        }
        appendWord(0);
    }

    std::vector<WORD> m_words;
};
