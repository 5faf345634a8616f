// Commands about list views: columns, rows (asked for as the screen asks), selection, geometry.
#include <vector>

#include "Common.h"

namespace ordalyn::e2e {

namespace {

int ColumnCount(HWND list) {
    const auto header = reinterpret_cast<HWND>(Send(list, LVM_GETHEADER));
    return header ? static_cast<int>(Send(header, HDM_GETITEMCOUNT)) : 0;
}

Json Columns(HWND list) {
    Json::Array columns;
    const int count = ColumnCount(list);
    std::vector<int> order(static_cast<std::size_t>(count));
    SendPointer(list, LVM_GETCOLUMNORDERARRAY, static_cast<WPARAM>(count), order.data());
    for (int i = 0; i < count; ++i) {
        wchar_t text[512] = L"";
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_FMT;
        column.pszText = text;
        column.cchTextMax = 512;
        SendPointer(list, LVM_GETCOLUMNW, static_cast<WPARAM>(i), &column);
        int position = -1;
        for (int p = 0; p < count; ++p)
            if (order[static_cast<std::size_t>(p)] == i)
                position = p;
        columns.emplace_back(
            Json::Object{{"caption", ToUtf8(column.pszText)},
                         {"width", Send(list, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(i))},
                         {"position", position}});
    }
    return columns;
}

Json SelectedRows(HWND list) {
    Json::Array rows;
    LRESULT row = -1;
    while ((row = Send(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0)
        rows.emplace_back(row);
    return rows;
}

Json List(const Json& request) {
    HWND list = WindowOf(request);
    constexpr auto kAll = static_cast<WPARAM>(-1);
    return Json::Object{
        {"rows", Send(list, LVM_GETITEMCOUNT)},
        {"columns", Columns(list)},
        {"selected", SelectedRows(list)},
        {"focusedRow", Send(list, LVM_GETNEXTITEM, kAll, LVNI_FOCUSED)},
        {"top", Send(list, LVM_GETTOPINDEX)},
        {"perPage", Send(list, LVM_GETCOUNTPERPAGE)},
        {"header", Send(list, LVM_GETHEADER)},
        {"extendedStyle", Send(list, LVM_GETEXTENDEDLISTVIEWSTYLE)},
        {"ownerData", (GetWindowLongW(list, GWL_STYLE) & LVS_OWNERDATA) != 0},
        {"textColor", Send(list, LVM_GETTEXTCOLOR)},
        {"backColor", Send(list, LVM_GETBKCOLOR)},
    };
}

std::string CellText(HWND list, int row, int column) {
    std::wstring text(260, L'\0');
    for (;;) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        const auto copied = static_cast<std::size_t>(
            SendPointer(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &item));
        if (copied + 1 < text.size() || text.size() > (1U << 24)) {
            text.resize(copied);
            return ToUtf8(text);
        }
        text.assign(text.size() * 4, L'\0');
    }
}

Json Rows(const Json& request) {
    HWND list = WindowOf(request);
    const auto first = static_cast<int>(request.Number("first"));
    const auto count = static_cast<int>(request.Number("count"));
    const int columns = ColumnCount(list);
    const auto end = std::min(first + count, static_cast<int>(Send(list, LVM_GETITEMCOUNT)));
    Json::Array rows;
    for (int row = first; row < end; ++row) {
        Json::Array cells;
        for (int column = 0; column < columns; ++column)
            cells.emplace_back(CellText(list, row, column));
        rows.emplace_back(std::move(cells));
    }
    return rows;
}

Json RowRect(const Json& request) {
    HWND list = WindowOf(request);
    RECT bounds{};
    bounds.left = LVIR_BOUNDS;
    if (!SendPointer(list, LVM_GETITEMRECT, static_cast<WPARAM>(request.Number("row")), &bounds))
        throw std::runtime_error("no such row");
    return RectJson(ToScreen(list, bounds));
}

// Column headers on screen, in column (not display) order.
Json HeaderRects(const Json& request) {
    const auto header = reinterpret_cast<HWND>(Send(WindowOf(request), LVM_GETHEADER));
    Json::Array rects;
    const auto count = static_cast<WPARAM>(Send(header, HDM_GETITEMCOUNT));
    for (WPARAM i = 0; i < count; ++i) {
        RECT bounds{};
        SendPointer(header, HDM_GETITEMRECT, i, &bounds);
        rects.emplace_back(RectJson(ToScreen(header, bounds)));
    }
    return rects;
}

}  // namespace

void AddListCommands(Commands& commands) {
    commands["list"] = List;
    commands["rows"] = Rows;
    commands["rowRect"] = RowRect;
    commands["headerRects"] = HeaderRects;
    commands["setColumnOrder"] = [](const Json& request) -> Json {
        std::vector<int> order;
        for (const Json& column : request.List("order"))
            order.push_back(static_cast<int>(column.AsNumber()));
        return SendPointer(WindowOf(request), LVM_SETCOLUMNORDERARRAY, order.size(), order.data());
    };
    commands["ensureVisible"] = [](const Json& request) -> Json {
        return Send(WindowOf(request), LVM_ENSUREVISIBLE,
                    static_cast<WPARAM>(request.Number("row")), FALSE);
    };
}

}  // namespace ordalyn::e2e
