#!/bin/sh
# checkSymbols.sh NM LIBRARY: the library asks only for Qt, the C and C++ runtimes and what is declared in include/,
# and shows only its exported classes. So it runs on the maker's libraries as it runs on the kit.
set -u
nm=$1
library=$2
bad=0

runtime='^(std::|__gnu|operator (new|delete)|__cxa|__gxx|_Unwind|vtable for __cxxabiv1|vtable for std|typeinfo for std|_ITM_|__gmon|__stack_chk|__tls|mem(cpy|set|move|cmp)|str(len|cmp|ncmp)|abort|free|malloc|floor|trunc|lround|round|ceil|a?sin|a?cos|fabs|fmod|isinf|isnan|guard variable for)'
qt='^(Q[A-Z]|q[A-Z_]|qt_|operator(<<|>>|==|!=|<|\+|-|\||&)|(non-virtual thunk to |virtual thunk to |vtable for |typeinfo for |typeinfo name for |guard variable for )?Q|Qt::|QtPrivate::|QTextStreamFunctions::|endl\(|endl|qHash|swap)'
sanitizers='^(__asan|__ubsan|__lsan|__sanitizer|__interceptor|___asan)'
declared='^(vtable for |typeinfo for |typeinfo name for |non-virtual thunk to )?(brel_common_qt|brel_common_qt_gui|qdconfig)::'

foreign=$("$nm" -D --undefined-only --demangle "$library" | sed 's/^ *[A-Za-z] //; s/@.*//' |
    grep -vE "$runtime" | grep -vE "$qt" | grep -vE "$sanitizers" | grep -vE "$declared")
if [ -n "$foreign" ]; then
    printf 'the library asks for what nobody declared:\n%s\n' "$foreign"
    bad=1
fi

kit=$("$nm" -D --undefined-only --demangle "$library" | grep -E 'melvox_(link|kit|receiver|display)')
if [ -n "$kit" ]; then
    printf 'the library asks for the development kit:\n%s\n' "$kit"
    bad=1
fi

needed=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p' | grep '^libmelvox')
if [ -n "$needed" ]; then
    printf 'the library asks for libraries of the development kit:\n%s\n' "$needed"
    bad=1
fi

# errorText_t is declared with an inline destructor, so whoever uses it carries a copy of its table.
shown=$("$nm" -D --defined-only --demangle "$library" | sed 's/^[0-9a-f]* [A-Za-z] //' |
    grep -E '^([A-Za-z_:]+ )?((vtable|typeinfo|typeinfo name) for |non-virtual thunk to )?brel_common_qt_gui::' |
    grep -vE '^(vtable for |typeinfo for |typeinfo name for |non-virtual thunk to )?brel_common_qt_gui::(melvox[A-Za-z]*_t(::|$)|errorText_t)')
if [ -n "$shown" ]; then
    printf 'the library shows what is its own business:\n%s\n' "$shown"
    bad=1
fi

within=$("$nm" -D --defined-only --demangle "$library" | sed 's/^[0-9a-f]* [A-Za-z] //' |
    grep -E '^((vtable|typeinfo|typeinfo name) for )?brel_common_qt_gui::melvox[A-Za-z]*_t::[A-Za-z]+_t(::|$)')
if [ -n "$within" ]; then
    printf 'the library shows what lacks MELVOX_UI_HIDDEN:\n%s\n' "$within"
    bad=1
fi

[ "$bad" = 0 ] && printf 'the symbols are as they should be\n'
exit $bad
