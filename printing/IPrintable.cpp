#include <OrtinControls/IPrintable.h>

IPrintable::~IPrintable() = default;
