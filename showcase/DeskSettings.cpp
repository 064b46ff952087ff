#include "DeskSettings.h"

#include <OrtinFoundation/Settings.h>
#include <shlobj.h>

namespace Desk {

namespace {

constexpr char ColumnsNode[] = "columns";
constexpr char LockedNode[] = "locked-columns";
constexpr char ThemeNode[] = "theme";
const std::string BlackTheme = "black";
const std::string WhiteTheme = "white";

} // namespace

std::wstring defaultSettingsFile() {
    wchar_t folder[MAX_PATH] = L"";
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder)))
        return {};
    const std::wstring own = std::wstring(folder) + L"\\OrtinDesk";
    ::CreateDirectoryW(own.c_str(), nullptr);
    return own + L"\\settings.txt";
}

ParameterStatus loadSettings(const std::wstring& file, DeskSettings& settings) {
    Settings loaded;
    ParameterStatus status = loaded.LoadFromFile(file);
    if (!status.IsSuccess())
        return status.GetCode() == Settings::FileNotFound ? ParameterStatus() : status;

    const Settings& tree = loaded;
    settings.columns.clear();
    for (const std::string& name : tree[ColumnsNode].GetChildNames())
        settings.columns.push_back(arrangedColumnFromText(static_cast<const std::string&>(tree[ColumnsNode][name])));
    settings.lockedColumns = tree[LockedNode].GetBool(settings.lockedColumns);
    if (static_cast<const std::string&>(tree[ThemeNode]) == BlackTheme)
        settings.theme = DeskTheme::Black;
    return status;
}

ParameterStatus saveSettings(const std::wstring& file, const DeskSettings& settings) {
    Settings tree;
    for (std::size_t position = 0; position < settings.columns.size(); ++position)
        tree[ColumnsNode][std::to_string(position)] = arrangedColumnText(settings.columns[position]);
    tree[LockedNode].SetBool(settings.lockedColumns);
    tree[ThemeNode] = settings.theme == DeskTheme::Black ? BlackTheme : WhiteTheme;
    return tree.SaveToFile(file);
}

} // namespace Desk
