# The dependency ladder, checked on every build: each folder may include only the folders
# listed for it here. An include that climbs the ladder (a core reaching a window) or crosses it
# (one core reaching a sibling core, the windows of one folder reaching another folder's windows)
# fails the build. Cores also never include Qt Widgets: they are tested without a display. The
# icon core and the command line include no Qt header at all: iconqt is where Qt meets them.
#
# Run as: cmake -DROOT=<source dir> -P CheckLayers.cmake
cmake_minimum_required(VERSION 3.25)

set(cores_below icon iconqt effects)
set(all_cores icon iconqt effects editor browser capture shell)
set(below_windows ${all_cores} platform)

set(may_include_icon icon)
set(may_include_iconqt icon iconqt)
set(may_include_effects icon iconqt effects)
set(may_include_editor ${cores_below} editor)
set(may_include_browser ${cores_below} browser)
set(may_include_capture ${cores_below} capture)
set(may_include_shell ${cores_below} shell)
set(may_include_platform ${below_windows})
foreach(area effects editor browser capture)
    set(may_include_${area}/ui ${below_windows} ${area}/ui)
endforeach()
set(may_include_shell/ui ${below_windows} shell/ui)
# The top: it creates the windows and wires one window's command to another.
set(may_include_app ${below_windows} effects/ui editor/ui browser/ui capture/ui shell/ui app)
set(may_include_cli icon cli)
set(may_include_resources/icons icon iconqt resources/icons)

set(checked icon iconqt effects editor browser capture shell platform effects/ui editor/ui browser/ui
            capture/ui shell/ui app cli resources/icons)
set(widget_free ${all_cores} cli resources/icons)
set(qt_free icon cli)

set(bad "")
foreach(folder IN LISTS checked)
    if(NOT IS_DIRECTORY "${ROOT}/${folder}")
        continue()
    endif()
    file(GLOB files "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.cpp")
    foreach(f IN LISTS files)
        file(STRINGS "${f}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*[<\"]")
        foreach(line IN LISTS lines)
            if(line MATCHES "#[ \t]*include[ \t]*\"([a-z]+(/[a-z]+)*)/[^/\"]+\"")
                set(target "${CMAKE_MATCH_1}")
                if(NOT target IN_LIST may_include_${folder})
                    string(APPEND bad "\n  ${f}: ${folder} may not include ${target}")
                endif()
            elseif(folder IN_LIST qt_free AND line MATCHES "#[ \t]*include[ \t]*<Q")
                string(APPEND bad "\n  ${f}: ${folder} may not use Qt (${line})")
            elseif(folder IN_LIST widget_free AND line MATCHES "[<\"](QtWidgets/|Q(Widget|Dialog|MainWindow|Application|PushButton|Label|MessageBox|AbstractButton|LineEdit|ComboBox|ListWidget|Layout|FileDialog|ColorDialog|ToolTip|Menu|ScrollArea|ScrollBar)[>\"])")
                string(APPEND bad "\n  ${f}: ${folder} may not use widgets (${line})")
            endif()
        endforeach()
    endforeach()
endforeach()
if(bad)
    message(FATAL_ERROR "Includes that break the folder ladder:${bad}")
endif()
