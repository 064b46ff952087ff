# the package for find_package(OrtinControls)
