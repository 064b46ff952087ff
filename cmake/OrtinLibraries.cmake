# Boost and the Guidelines Support Library from Debian's packages. Their headers suit every platform, but they lie among
# those of this machine's own system, which the cross compiler must never see: it gets a folder of links to these two.
set(ORTIN_LIBRARY_HEADERS ${CMAKE_BINARY_DIR}/libraries)
file(MAKE_DIRECTORY ${ORTIN_LIBRARY_HEADERS})
foreach(library boost gsl)
    if(NOT IS_DIRECTORY /usr/include/${library})
        message(FATAL_ERROR "/usr/include/${library} is missing (Debian packages libboost1.81-dev and libmsgsl-dev)")
    endif()
    file(CREATE_LINK /usr/include/${library} ${ORTIN_LIBRARY_HEADERS}/${library} SYMBOLIC)
endforeach()
