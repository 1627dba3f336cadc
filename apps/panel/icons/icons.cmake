# Icons for programs beside the panel, which takes all of them; in the order of their tables.
set(panel_icons
    home cycle-start feed-hold reset single-block jog-minus jog-plus rapid handwheel
    spindle-cw spindle-ccw spindle-stop coolant tool offsets alarm program graphic
    edit settings language lock emergency-stop help)
list(TRANSFORM panel_icons REPLACE "(.+)" "${CMAKE_CURRENT_LIST_DIR}/\\1.png")

# Their colours, for surfaces with a palette.
set(panel_icon_colors ${CMAKE_CURRENT_LIST_DIR}/palette/eight.png)
