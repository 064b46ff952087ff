# The compiler's runtime libraries, laid beside the programs: exceptions and the heap cross the borders of our DLLs, so
# all of them share one C++ runtime.
set(ORTIN_RUNTIME_LIBRARIES "")
foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT EXISTS ${path})
        message(FATAL_ERROR "${CMAKE_CXX_COMPILER} does not know where its ${library} is")
    endif()
    file(COPY ${path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    list(APPEND ORTIN_RUNTIME_LIBRARIES ${path})
endforeach()
