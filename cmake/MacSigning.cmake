# Who the application and its helper take each other for: KESTROWIND_APPLICATION_REQUIREMENT and
# KESTROWIND_HELPER_REQUIREMENT, in the system's language for code requirements.
set(KESTROWIND_TEAM_IDENTIFIER "" CACHE STRING "The ten characters of the team that signs the application and its helper")
option(KESTROWIND_UNSIGNED_DEVELOPMENT "Build without a team: anybody on the machine may drive its fans" OFF)

if(KESTROWIND_TEAM_IDENTIFIER)
    if(NOT KESTROWIND_TEAM_IDENTIFIER MATCHES "^[A-Z0-9]+$")
        message(FATAL_ERROR "KESTROWIND_TEAM_IDENTIFIER is no team identifier: \"${KESTROWIND_TEAM_IDENTIFIER}\"")
    endif()
    string(CONCAT team "anchor apple generic and certificate leaf[subject.OU] = "
        "\\\"${KESTROWIND_TEAM_IDENTIFIER}\\\" and identifier ")
    set(KESTROWIND_APPLICATION_REQUIREMENT "${team}\\\"${KESTROWIND_BUNDLE_IDENTIFIER}\\\"")
    set(KESTROWIND_HELPER_REQUIREMENT "${team}\\\"${KESTROWIND_BUNDLE_IDENTIFIER}.helper\\\"")
elseif(KESTROWIND_UNSIGNED_DEVELOPMENT)
    set(KESTROWIND_APPLICATION_REQUIREMENT "")
    set(KESTROWIND_HELPER_REQUIREMENT "")
    message(WARNING "KESTROWIND_UNSIGNED_DEVELOPMENT is on: the helper that is built takes orders from every "
        "program on the machine that it is installed on. Not to be handed on.")
else()
    message(FATAL_ERROR "Who may speak to the helper? KESTROWIND_TEAM_IDENTIFIER is the team that signs the "
        "application and its helper. To try it without one: KESTROWIND_UNSIGNED_DEVELOPMENT=ON, with which every "
        "program on the machine may drive its fans.")
endif()
