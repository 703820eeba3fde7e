# One target that every part of the project links privately: warnings, sanitizers, Qt strictness.
add_library(tempolark_strict INTERFACE)
target_compile_features(tempolark_strict INTERFACE cxx_std_20)
target_compile_options(tempolark_strict INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual $<$<BOOL:${TEMPOLARK_WERROR}>:-Werror>)
target_compile_definitions(tempolark_strict INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CONTEXTLESS_CONNECT
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_KEYWORDS)

if(TEMPOLARK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=address,undefined)
endif()
if(TEMPOLARK_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
