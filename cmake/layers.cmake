# How our own targets are built. A folder of src/ is a library, which sees the headers of what it
# links and no others; those of framework/ and toolkit/ are each a library of their own.

find_package(Threads REQUIRED)

# What every target of ours is compiled with.
add_library(pitchsieve_options INTERFACE)
target_compile_features(pitchsieve_options INTERFACE cxx_std_20)
target_compile_options(pitchsieve_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wcast-qual -Wformat=2 -Wimplicit-fallthrough
  -Wdouble-promotion -Wextra-semi -Wmissing-declarations -Wredundant-decls -Wundef
  -Wzero-as-null-pointer-constant
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op -Wsuggest-override>
  $<$<CXX_COMPILER_ID:Clang>:-Wcomma -Wloop-analysis -Wunreachable-code-aggressive>
  $<$<BOOL:${PITCHSIEVE_STRICT}>:-Werror>)

if(EMSCRIPTEN)
  # As small as can be: the program is loaded with its page. Each library, the compiler's own too, is
  # linked as a whole program.
  set(CMAKE_CXX_FLAGS_RELEASE "-Oz -DNDEBUG")
  target_compile_options(pitchsieve_options INTERFACE -fwasm-exceptions -flto)
  target_link_options(pitchsieve_options INTERFACE -fwasm-exceptions -flto)
else()
  # A fault in memory ends the program before it can be put to use. tools/check_hardened.sh looks for
  # all of this in the built files.
  set(CMAKE_POSITION_INDEPENDENT_CODE ON)
  include(CheckPIESupported)
  check_pie_supported()
  target_compile_options(pitchsieve_options INTERFACE -fstack-protector-strong
    $<$<CONFIG:Release,RelWithDebInfo>:-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2>)
  target_link_options(pitchsieve_options INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()

if(PITCHSIEVE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(pitchsieve_options INTERFACE ${sanitizers})
  target_link_options(pitchsieve_options INTERFACE ${sanitizers})
endif()

if(PITCHSIEVE_FUZZ)
  # What the fuzzer watches: which way each branch of our own code went.
  target_compile_options(pitchsieve_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(pitchsieve_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# add_layer(FOLDER sources... LINKS targets...)
# The library of src/FOLDER. Its headers are included as "FOLDER/name.h", by itself and by what links
# it: each library has an include directory of its own in which only its folder stands.
function(add_layer folder)
  cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "LINKS")
  string(REPLACE "/" "_" name ${folder})
  set(root ${PROJECT_BINARY_DIR}/include/${name})
  cmake_path(GET folder PARENT_PATH parent)
  file(MAKE_DIRECTORY ${root}/${parent})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/src/${folder} ${root}/${folder} SYMBOLIC)
  list(TRANSFORM layer_UNPARSED_ARGUMENTS PREPEND ${folder}/)
  add_library(${name} STATIC ${layer_UNPARSED_ARGUMENTS})
  target_include_directories(${name} PUBLIC ${root})
  target_link_libraries(${name} PUBLIC ${layer_LINKS} PRIVATE pitchsieve_options)
endfunction()
