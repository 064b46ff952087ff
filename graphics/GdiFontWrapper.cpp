#include <OrtinControls/GdiFontWrapper.h>

#include <algorithm>
#include <cstring>
#include <iterator>

#include <boost/json/object.hpp>

#include <OrtinControls/FontsObjManager.h>
#include <OrtinControls/GraphicsHelper.h>
#include <OrtinFoundation/BinaryStringSerializer.h>
#include <OrtinFoundation/Settings.h>
#include <OrtinFoundation/StringTools.h>

#include "FontForm.h"
#include "PersistedVersions.h"

namespace {

// Of both persisted forms.
constexpr const char* Name = "Name";
constexpr const char* Parameters = "Params";

void replaceWeight(LOGFONTW& description, long weight) {
    if (weight != 0) {
        description.lfWeight = weight;
    }
}

long scaledHeight(long height) {
    return FontForm::narrowed(GraphicsHelper::CalculateDpiAwareHeight(height));
}

long unscaledHeight(long height) {
    return FontForm::narrowed(GraphicsHelper::CalculateDpiUnawareHeight(height));
}

} // namespace

GdiFontWrapper::GdiFontWrapper() : GdiFontWrapper(0L) {}

GdiFontWrapper::GdiFontWrapper(long weight) {
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof m_description, &m_description);
    replaceWeight(m_description, weight);
    m_description.lfHeight = scaledHeight(m_description.lfHeight);
}

GdiFontWrapper::GdiFontWrapper(LOGFONTW description, long weight) {
    FromLOGFONT(description, weight);
}

GdiFontWrapper::GdiFontWrapper(const boost::json::value& json, long weight) {
    FromJson(json);
    replaceWeight(m_description, weight);
}

GdiFontWrapper::GdiFontWrapper(const GdiFontWrapper& other) : m_description(other.m_description) {}

// Assigned to itself, a font too gives up its GDI font and no more.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
GdiFontWrapper& GdiFontWrapper::operator=(const GdiFontWrapper& other) {
    FromLOGFONT(other.m_description, 0);
    return *this;
}

GdiFontWrapper::~GdiFontWrapper() = default;

bool GdiFontWrapper::operator==(const GdiFontWrapper& other) const {
    return std::memcmp(&m_description, &other.m_description, sizeof m_description) == 0;
}

bool GdiFontWrapper::operator!=(const GdiFontWrapper& other) const {
    return !(*this == other);
}

long GdiFontWrapper::GetHeight() const {
    return m_description.lfHeight;
}

LOGFONTW GdiFontWrapper::GetLOGFONT() const {
    return m_description;
}

std::wstring GdiFontWrapper::GetFaceName() const {
    const auto* begin = std::begin(m_description.lfFaceName);
    return {begin, std::find(begin, std::end(m_description.lfFaceName), L'\0')};
}

HFONT GdiFontWrapper::GetHFONT() & {
    if (m_font == nullptr) {
        m_font = FontsObjManager::Instance()->AddFont(m_description);
    }
    return m_font != nullptr ? static_cast<HFONT>(*m_font) : nullptr;
}

HGDIOBJ GdiFontWrapper::GetHGDIOBJ() & {
    return GetHFONT();
}

void GdiFontWrapper::FromHandle(void* const handle, long weight) {
    LOGFONTW description{};
    if (handle != nullptr && ::GetObjectW(handle, sizeof description, &description) != 0) {
        FromLOGFONT(description, weight);
    }
}

void GdiFontWrapper::FromLOGFONT(LOGFONTW description, long weight) {
    m_description = description;
    replaceWeight(m_description, weight);
    m_font.reset();
}

// The orientation is meant to stay.
void GdiFontWrapper::SetAngle(long degrees) {
    m_description.lfEscapement = static_cast<long>(static_cast<unsigned long>(degrees) * 10);
    m_font.reset();
}

void GdiFontWrapper::UpdateFontFaceName(const std::wstring& name) {
    if (name.size() >= LF_FACESIZE) {
        return;
    }
    std::fill(std::copy(name.begin(), name.end(), std::begin(m_description.lfFaceName)),
              std::end(m_description.lfFaceName), L'\0');
    m_font.reset();
}

void GdiFontWrapper::Serialize(Settings& settings) const {
    settings.Version = PersistedVersions::Text;
    LOGFONTW written = m_description;
    written.lfHeight = unscaledHeight(m_description.lfHeight);
    settings[Name] = GetFaceName().c_str();
    settings[Parameters] = FontForm::toText(written);
}

void GdiFontWrapper::Unserialize(const Settings& settings) {
    switch (settings.Version) {
    case PersistedVersions::Legacy:
        if (BinaryStringSerializer::ConvertTextToBin(settings, &m_description, sizeof m_description)) {
            m_font.reset();
        }
        break;
    case PersistedVersions::Text: {
        const std::string& parameters = settings[Parameters];
        if (FontForm::fromText(parameters, m_description)) {
            UpdateFontFaceName(settings[Name]);
        }
        break;
    }
    default:
        break;
    }
    // Whatever was read, nothing too: a height that was in memory before is then scaled once more, which is meant.
    m_description.lfHeight = scaledHeight(m_description.lfHeight);
}

bool GdiFontWrapper::FromJson(const boost::json::value& json) {
    if (json.is_null()) {
        return false;
    }
    const boost::json::object& form = json.as_object();
    // The GDI font is given up with the face name and only then: under a name that is refused, the parameters change
    // beneath a font that stays in use, which is meant.
    UpdateFontFaceName(OrtinTools::String::Utf8ToWide(form.at(Name).as_string()));
    const boost::json::array& parameters = form.at(Parameters).as_array();
    if (parameters.size() != FontForm::parameterCount) {
        return false;
    }
    FontForm::fromJson(parameters, GraphicsHelper::GetSystemScaleFactor(), m_description);
    return true;
}

boost::json::value GdiFontWrapper::ToJson() const {
    boost::json::object form;
    form.emplace(Name, OrtinTools::String::WideToJsonUtf8(GetFaceName()));
    form.emplace(Parameters, FontForm::toJson(m_description, GraphicsHelper::GetSystemScaleFactor()));
    return form;
}
