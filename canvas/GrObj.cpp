#include <OrtinControls/GrObj.h>

VectorCanvas::GrObj::~GrObj() = default;
