# Kestrowind.app: the program with its information dictionary and what install() looks for in its
# resources.
set(KESTROWIND_ICON "${CMAKE_SOURCE_DIR}/resources/macOS/Kestrowind.icns" CACHE FILEPATH
    "The application's icon")

# kestrowind_mac_bundle(TARGET)
function(kestrowind_mac_bundle target)
    set(job_description ${CMAKE_CURRENT_BINARY_DIR}/${KESTROWIND_BUNDLE_IDENTIFIER}.helper.plist)
    configure_file(${CMAKE_SOURCE_DIR}/resources/helper.plist.in ${job_description} @ONLY)
    set(resources ${job_description} ${KESTROWIND_ICON})
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
    # Its program, which a target makes, cannot be named among the resources.
    add_dependencies(${target} kestrowind-helper)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:kestrowind-helper>
            $<TARGET_BUNDLE_CONTENT_DIR:${target}>/Resources/KestrowindHelper
        VERBATIM)
endfunction()
