#include <OrtinControls/IContextMenuBase.h>
#include <OrtinControls/ITableView.h>

ITableView::~ITableView() = default;

IContextMenuBase::IContextMenuBase(CWnd* window) : m_window(window) {}

IContextMenuBase& IContextMenuBase::operator=(const IContextMenuBase& other) = default;

IContextMenuBase::~IContextMenuBase() = default;
