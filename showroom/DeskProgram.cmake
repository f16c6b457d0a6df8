# The program of the desk, at the top of the build folder. Included by this folder's CMakeLists.txt.
find_package(CLI11 REQUIRED)

add_executable(orvane-desk Main.cpp)
# It only parses arguments, and CLI11's templates are slow to optimise.
set_source_files_properties(Main.cpp PROPERTIES COMPILE_OPTIONS -O0)
target_link_libraries(orvane-desk PRIVATE orvane_desk_explore orvane_desk_script orvane_showroom_gallery
                                          orvane_showroom_tour orvane_showroom_window CLI11::CLI11)
set_target_properties(orvane-desk PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
