#include <OrtinControls/GdiPenWrapper.h>

#include <cstring>

#include <OrtinFoundation/BinaryStringSerializer.h>
#include <OrtinFoundation/Settings.h>

#include "NumberText.h"
#include "PersistedVersions.h"

GdiPenWrapper::GdiPenWrapper() = default;

GdiPenWrapper::GdiPenWrapper(unsigned int style, long width, unsigned long color)
    : m_description{style, {width, 0}, color} {}

GdiPenWrapper::GdiPenWrapper(const GdiPenWrapper& other) : m_description(other.m_description) {}

GdiPenWrapper& GdiPenWrapper::operator=(const GdiPenWrapper& other) {
    FromLOGPEN(other.m_description);
    return *this;
}

GdiPenWrapper::~GdiPenWrapper() = default;

// The settled comparison takes in the handle too: no comparison of fields is to come of it.
bool GdiPenWrapper::operator==(const GdiPenWrapper& other) const {
    return std::memcmp(&m_description, &other.m_description, sizeof m_description) == 0 && m_pen == other.m_pen;
}

bool GdiPenWrapper::operator!=(const GdiPenWrapper& other) const {
    return !(*this == other);
}

unsigned long GdiPenWrapper::Color() const {
    return m_description.lopnColor;
}

long GdiPenWrapper::Width() const {
    return m_description.lopnWidth.x;
}

unsigned int GdiPenWrapper::LineStyle() const {
    return m_description.lopnStyle;
}

void GdiPenWrapper::Color(unsigned long color) {
    m_description.lopnColor = color;
    DeletePen();
}

void GdiPenWrapper::Width(int width) {
    m_description.lopnWidth.x = width;
    DeletePen();
}

void GdiPenWrapper::LineStyle(unsigned int style) {
    m_description.lopnStyle = style;
    DeletePen();
}

LOGPEN GdiPenWrapper::GetLOGPEN() const {
    return m_description;
}

void GdiPenWrapper::FromLOGPEN(LOGPEN description) {
    m_description = description;
    DeletePen();
}

void GdiPenWrapper::FromDescription(unsigned int style, long width, unsigned long color) {
    FromLOGPEN({style, {width, m_description.lopnWidth.y}, color});
}

void GdiPenWrapper::FromHandle(void* const handle) {
    if (handle != nullptr && ::GetObjectW(handle, sizeof m_description, &m_description) > 0) {
        DeletePen();
    }
}

void GdiPenWrapper::DeletePen() {
    m_pen.DeleteObject();
}

HPEN GdiPenWrapper::GetHPEN() & {
    if (m_pen.GetSafeHandle() == nullptr) {
        m_pen.Attach(::CreatePenIndirect(&m_description));
    }
    return m_pen;
}

HGDIOBJ GdiPenWrapper::GetHGDIOBJ() & {
    return GetHPEN();
}

void GdiPenWrapper::Serialize(Settings& settings) const {
    settings.Version = PersistedVersions::Text;
    std::string text;
    NumberText::append(text, m_description.lopnStyle);
    NumberText::append(text, m_description.lopnWidth.x);
    NumberText::append(text, m_description.lopnColor);
    settings = text;
}

void GdiPenWrapper::Unserialize(const Settings& settings) {
    const std::string& text = settings;
    switch (settings.Version) {
    case PersistedVersions::Legacy:
        if (BinaryStringSerializer::ConvertTextToBin(text, &m_description, sizeof m_description)) {
            DeletePen();
        }
        break;
    case PersistedVersions::Text: {
        std::string_view numbers = text;
        // What was read stays, even if the rest is missing: the handle then stays too.
        if (NumberText::scan(numbers, m_description.lopnStyle) &&
            NumberText::scan(numbers, m_description.lopnWidth.x) &&
            NumberText::scan(numbers, m_description.lopnColor)) {
            DeletePen();
        }
        break;
    }
    default:
        break;
    }
}
