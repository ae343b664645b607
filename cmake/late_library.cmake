# A part of the desktop program that is loaded when it is first needed. What it shares with the
# program it takes from the program, so it links none of its libraries, and every program that loads
# it exports its symbols: load_late_libraries(program).
set(late_folder ${CMAKE_INSTALL_LIBDIR}/turnbay/parts)
# From the folder of the programs, in the build as where both are installed.
file(RELATIVE_PATH late_from_programs
  ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/turnbay/parts)

function(add_late_library name)
  add_library(${name} MODULE ${ARGN})
  set_target_properties(${name} PROPERTIES
    PREFIX "" LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${late_from_programs})
  target_link_libraries(${name} PRIVATE turnbay_options Qt6::Widgets)
  # Also where all of the C library comes through the program: packages ask for it.
  target_link_options(${name} PRIVATE LINKER:--push-state,--no-as-needed,-lc,--pop-state)
  install(TARGETS ${name} LIBRARY DESTINATION ${late_folder})
endfunction()

function(load_late_libraries program)
  set_target_properties(${program} PROPERTIES ENABLE_EXPORTS ON)
  add_dependencies(${program} turnbay_print turnbay_sound turnbay_view3d)
endfunction()
