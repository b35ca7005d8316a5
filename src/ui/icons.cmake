# Compiles the icons, and what the registration for one user is made from, into a target as the Qt
# resources :/varnholt/icons/*.svg, :/varnholt/hilfe.rtf, :/varnholt/varnholt.svg and :/varnholt/varnholt.desktop.
function(varnholt_icons target)
    file(GLOB bilder CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/icons/*.svg)
    qt_add_resources(${target} varnholt_icons
        PREFIX /varnholt/icons BASE ${PROJECT_SOURCE_DIR}/data/icons FILES ${bilder})
    qt_add_resources(${target} varnholt_desktop
        PREFIX /varnholt
        BASE ${PROJECT_SOURCE_DIR}/packaging
        FILES ${PROJECT_SOURCE_DIR}/packaging/varnholt.svg ${PROJECT_SOURCE_DIR}/packaging/varnholt.desktop)
    # The German help text belongs to the layout of its form.
    qt_add_resources(${target} varnholt_hilfe
        PREFIX /varnholt BASE ${PROJECT_SOURCE_DIR}/data FILES ${PROJECT_SOURCE_DIR}/data/hilfe.rtf)
endfunction()
