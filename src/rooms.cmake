# vernacle_room(SOURCES FILE... USES ROOM...): the library of this folder. "engine/core" is the target
# engine_core. The engine's rooms link no Qt, and so can include none.
function(vernacle_room)
    cmake_parse_arguments(PARSE_ARGV 0 ROOM "" "" "SOURCES;USES")
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src
               OUTPUT_VARIABLE folder)
    string(REPLACE / _ name ${folder})
    string(REPLACE / _ used "${ROOM_USES}")
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(${name} PUBLIC vernacle_flags ${used})
    if(folder MATCHES "^desktop/")
        vernacle_make_desktop_room(${name})
    elseif(VERNACLE_SANITIZE AND CMAKE_BUILD_TYPE STREQUAL "Debug")
        # Every page's tests draw; without optimisation the sanitized drawing is most of their time.
        target_compile_options(${name} PRIVATE -O1)
    endif()
endfunction()

find_package(Qt6 6.4 REQUIRED COMPONENTS Gui PrintSupport Svg Widgets)

add_library(vernacle_toolkit INTERFACE)
target_compile_definitions(vernacle_toolkit INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CONTEXTLESS_CONNECT QT_NO_KEYWORDS)
target_link_libraries(vernacle_toolkit INTERFACE Qt6::Gui Qt6::Svg)

# Most of compiling a form is reading the toolkit's headers. (Where they are precompiled GCC 12 takes
# the copying of a std::string for an overflow.)
set(overflow $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow;-Wno-array-bounds>)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/desktop_headers.cpp "")
add_library(desktop_headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/desktop_headers.cpp)
target_link_libraries(desktop_headers PUBLIC
    vernacle_flags vernacle_toolkit Qt6::Widgets Qt6::PrintSupport)
target_compile_options(desktop_headers PRIVATE ${overflow})
target_precompile_headers(desktop_headers PRIVATE
    <functional> <map> <memory> <string> <vector>
    <QApplication> <QDialog> <QGridLayout> <QGroupBox> <QLabel> <QLineEdit> <QPushButton>
    <QRadioButton> <QVBoxLayout> <QWidget>)

function(vernacle_make_desktop_room name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PUBLIC vernacle_toolkit Qt6::Widgets Qt6::PrintSupport)
    target_compile_options(${name} PRIVATE ${overflow})
    target_precompile_headers(${name} REUSE_FROM desktop_headers)
endfunction()
