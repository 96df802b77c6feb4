# The user guide shipped with the program: the README's sections for users (the title
# and introduction, then the sections named below, in the README's order), without the
# pictures, written to `out`. The build reruns it when the README changes.
function(kestrel_user_guide readme out)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${readme})
  file(READ ${readme} text)
  set(user_sections
      "The first ten minutes" "Trying it without a module" "The pages of the window" "Data files"
      "kestrel-cli" "Writing only what changed" "The whole layout" "Readable configurations and differences")
  set(guide "")
  set(first TRUE)
  while(NOT text STREQUAL "")
    # One section: up to the next second-level heading.
    string(SUBSTRING "${text}" 1 -1 rest)
    string(FIND "${rest}" "\n## " next)
    if(next EQUAL -1)
      set(section "${text}")
      set(text "")
    else()
      math(EXPR next "${next} + 2")
      string(SUBSTRING "${text}" 0 ${next} section)
      string(SUBSTRING "${text}" ${next} -1 text)
    endif()
    string(REGEX MATCH "^## ([^\n]*)" heading "${section}")
    if(first OR CMAKE_MATCH_1 IN_LIST user_sections)
      string(APPEND guide "${section}")
    endif()
    set(first FALSE)
  endwhile()
  string(REGEX REPLACE "\n[ ]*!\\[[^\n]*" "" guide "${guide}")
  string(REGEX REPLACE "\n\n\n+" "\n\n" guide "${guide}")
  file(WRITE ${out} "${guide}")
endfunction()
