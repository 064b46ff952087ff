#include "DeskSettings.h"

#include <OrtinFoundation/Settings.h>
#include <OrtinFoundation/StringTools.h>
#include <shlobj.h>

#include <algorithm>
#include <filesystem>

#include "chart/ChartSettings.h"

namespace Desk {

namespace {

constexpr char ColumnsNode[] = "columns";
constexpr char LockedNode[] = "locked-columns";
constexpr char ThemeNode[] = "theme";
constexpr char ChartNode[] = "chart";
const std::string BlackTheme = "black";
const std::string WhiteTheme = "white";

/// Leaves the tree empty if there is no file.
ParameterStatus loadTree(const std::wstring& file, Settings& tree) {
    const ParameterStatus status = tree.LoadFromFile(file);
    return status.GetCode() == Settings::FileNotFound ? ParameterStatus() : status;
}

/// The columns stand under their places, 0, 1 and so on.
bool isPlace(const std::string& name) {
    return !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
}

ColumnLayout columnsOf(const Settings& node) {
    ColumnLayout columns;
    for (const std::string& name : node.GetChildNames())
        if (isPlace(name))
            columns.push_back(arrangedColumnFromText(static_cast<const std::string&>(node[name])));
    return columns;
}

void replaceColumns(Settings& node, const ColumnLayout& columns) {
    const ColumnLayout all = withForeignColumns(columns, columnsOf(node));
    for (const std::string& name : node.GetChildNames())
        if (isPlace(name))
            node.RemoveChild(name);
    for (std::size_t position = 0; position < all.size(); ++position)
        node[std::to_string(position)] = arrangedColumnText(all[position]);
}

std::wstring remarkOn(const std::wstring& file, const std::vector<std::string>& unread) {
    constexpr std::size_t MostNamed = 3;
    const std::size_t named = std::min(unread.size(), MostNamed);
    std::wstring text = file + L": nie odczytano ustawień wykresu";
    for (std::size_t each = 0; each < named; ++each)
        text += (each == 0 ? L": " : L", ") + OrtinTools::String::Utf8ToWide(unread[each]);
    if (unread.size() > named)
        text += L" i jeszcze " + std::to_wstring(unread.size() - named);
    return text + L"; zamiast nich są domyślne";
}

} // namespace

std::wstring defaultSettingsFile() {
    wchar_t folder[MAX_PATH] = L"";
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, folder)))
        return {};
    const std::wstring own = std::wstring(folder) + L"\\OrtinDesk";
    ::CreateDirectoryW(own.c_str(), nullptr);
    return own + L"\\settings.txt";
}

ParameterStatus loadSettings(const std::wstring& file, DeskSettings& settings, std::wstring* remark) {
    const std::filesystem::path folder = std::filesystem::path(file).parent_path();
    std::error_code error;
    if (!folder.empty() && !std::filesystem::is_directory(folder, error))
        return {Settings::FileNotWritable, file + L": nie ma takiego folderu; utwórz go albo podaj inny plik"};
    Settings tree;
    ParameterStatus status = loadTree(file, tree);
    if (!status.IsSuccess())
        return status;

    const Settings& kept = tree;
    if (kept.HasChild(ColumnsNode))
        settings.columns = columnsOf(kept[ColumnsNode]);
    settings.lockedColumns = kept[LockedNode].GetBool(settings.lockedColumns);
    const std::string& theme = kept[ThemeNode];
    if (theme == BlackTheme)
        settings.theme = DeskTheme::Black;
    else if (theme == WhiteTheme)
        settings.theme = DeskTheme::White;
    const std::vector<std::string> unread = readChart(kept[ChartNode], settings.chart);
    if (remark && !unread.empty())
        *remark = remarkOn(file, unread);
    return status;
}

ParameterStatus saveSettings(const std::wstring& file, const DeskSettings& settings) {
    Settings tree;
    if (ParameterStatus status = loadTree(file, tree); !status.IsSuccess())
        return status;
    replaceColumns(tree[ColumnsNode], settings.columns);
    tree[LockedNode].SetBool(settings.lockedColumns);
    tree[ThemeNode] = settings.theme == DeskTheme::Black ? BlackTheme : WhiteTheme;
    writeChart(tree[ChartNode], settings.chart);
    return tree.SaveToFile(file);
}

} // namespace Desk
