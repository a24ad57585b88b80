#!/usr/bin/env python3
"""Links the address of every function and variable that the given headers declare.

    link_all.py --work DIR --compiler "c++ -I..." --link "LIBRARY ..." HEADER...

Quote a name with blanks as the shell does.

The names come from clang's syntax tree, so a new declaration is held to this without a line here. Asks for every
function that the headers only declare, public or protected, and for the free functions of the interface (those
outside any namespace) even where the header defines them: a host may look them up by name. Templates and members
that are defined in their class are compiled by whoever calls them.

Exits with 77 if clang++ is missing.
"""
import argparse
import json
import pathlib
import shlex
import shutil
import subprocess
import sys

FUNCTIONS = {'FunctionDecl', 'CXXMethodDecl', 'CXXConstructorDecl', 'CXXDestructorDecl', 'CXXConversionDecl'}


def top_level(lines):
    """Yields the top-level declarations of a syntax tree one at a time; the whole tree would fill the memory."""
    chunk = []
    for line in lines:
        if line.startswith('    {'):
            chunk = []
        chunk.append(line)
        if line.rstrip(',\n') == '    }':
            yield json.loads(''.join(chunk).rstrip(',\n'))


def is_defined(function):
    parts = function.get('inner', [])
    return 'explicitlyDefaulted' in function or any(part['kind'] == 'CompoundStmt' for part in parts)


def collect(declaration, declared, defined, scope=()):
    """Sorts the mangled names of what a declaration declares into two sets."""
    kind, name = declaration['kind'], declaration.get('name', '')
    if declaration.get('isImplicit') or declaration.get('explicitlyDeleted') or declaration.get('pure'):
        return
    if kind in ('NamespaceDecl', 'LinkageSpecDecl', 'CXXRecordDecl'):
        if name == 'std' or name.startswith('__'):
            return
        access = 'private' if declaration.get('tagUsed') == 'class' else 'public'
        for inner in declaration.get('inner', []):
            if inner['kind'] == 'AccessSpecDecl':
                access = inner['access']
            elif access != 'private' and inner['kind'].endswith('Decl'):
                collect(inner, declared, defined, (*scope, name))
        return

    mangled = declaration.get('mangledName', '')
    if not mangled.startswith('_Z') or (not scope and name.startswith(('__', 'operator new', 'operator delete'))):
        return  # the C library's, or the language's own
    if kind in FUNCTIONS:
        (defined if scope and is_defined(declaration) else declared).add(mangled)
    elif kind == 'VarDecl' and declaration.get('storageClass') in ('extern', 'static'):
        (defined if declaration.get('inline') or declaration.get('constexpr') else declared).add(mangled)


def main():
    options = argparse.ArgumentParser()
    options.add_argument('--work', type=pathlib.Path)
    options.add_argument('--compiler', type=shlex.split)
    options.add_argument('--link', type=shlex.split)
    options.add_argument('headers', nargs='+')
    options = options.parse_args()

    if not shutil.which('clang++'):
        print('clang++ is needed to read the headers; on Debian: apt-get install clang')
        return 77

    options.work.mkdir(parents=True, exist_ok=True)
    umbrella = options.work / 'headers.cpp'
    umbrella.write_text(''.join(f'#include "{header}"\n' for header in options.headers))
    declared, defined = set(), set()
    dump = ['clang++', *options.compiler[1:], '-fsyntax-only', '-Xclang', '-ast-dump=json', umbrella]
    with subprocess.Popen(dump, stdout=subprocess.PIPE, text=True) as clang:
        for declaration in top_level(clang.stdout):
            collect(declaration, declared, defined)
    if clang.returncode != 0:
        return 'clang++ could not read the headers'

    names = sorted(declared - defined)
    source = options.work / 'link_all.cpp'
    source.write_text(
        ''.join(f'extern char const symbol_{i} asm("{name}");\n' for i, name in enumerate(names))
        + 'char const* volatile const addresses[] = {'
        + ''.join(f'&symbol_{i}, ' for i in range(len(names)))
        + '};\nint main() { return addresses[0] ? 0 : 1; }\n')
    build = [*options.compiler, '-o', options.work / 'link_all', source, *options.link]
    if not names or subprocess.run(build).returncode != 0:
        return 'The installed headers declare what the linker names above, but no library exports it.'
    print(f'{len(names)} names of {len(options.headers)} headers link')
    return subprocess.run([options.work / 'link_all']).returncode


sys.exit(main())
