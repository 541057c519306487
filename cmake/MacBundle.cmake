# Kestrowind.app: the program with its information dictionary and what install() looks for in its
# resources.
set(KESTROWIND_HELPER_EXECUTABLE "" CACHE FILEPATH
    "The privileged helper's program, to be put into the bundle as KestrowindHelper")
set(KESTROWIND_ICON "${CMAKE_SOURCE_DIR}/resources/macOS/Kestrowind.icns" CACHE FILEPATH
    "The application's icon")

# kestrowind_mac_bundle(TARGET)
function(kestrowind_mac_bundle target)
    set(job_description ${CMAKE_CURRENT_BINARY_DIR}/${KESTROWIND_BUNDLE_IDENTIFIER}.helper.plist)
    configure_file(${CMAKE_SOURCE_DIR}/resources/helper.plist.in ${job_description} @ONLY)
    set(resources ${job_description} ${KESTROWIND_ICON})
    if(KESTROWIND_HELPER_EXECUTABLE)
        set(helper ${CMAKE_CURRENT_BINARY_DIR}/KestrowindHelper)
        configure_file(${KESTROWIND_HELPER_EXECUTABLE} ${helper} COPYONLY)
        list(APPEND resources ${helper})
    else()
        message(STATUS "KESTROWIND_HELPER_EXECUTABLE is not set: the bundle cannot install a helper")
    endif()
    target_sources(${target} PRIVATE ${resources})
    set_source_files_properties(${resources} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)

    get_filename_component(icon ${KESTROWIND_ICON} NAME)
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME Kestrowind
        MACOSX_BUNDLE ON
        MACOSX_BUNDLE_INFO_PLIST ${CMAKE_SOURCE_DIR}/resources/macOS/Info.plist.in
        MACOSX_BUNDLE_BUNDLE_NAME Kestrowind
        MACOSX_BUNDLE_GUI_IDENTIFIER ${KESTROWIND_BUNDLE_IDENTIFIER}
        MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
        MACOSX_BUNDLE_BUNDLE_VERSION ${KESTROWIND_BUILD_NUMBER}
        MACOSX_BUNDLE_ICON_FILE ${icon})
endfunction()
