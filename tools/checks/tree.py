"""The project's own files, told without asking version control, so that a plain copy checks as well."""
import os

LEFT_OUT = {"build", ".git", "__pycache__", "node_modules"}


def files(folder=".", endings=("",)):
    """Every file below a folder whose name ends in one of these ways, by its path from here."""
    found = set()
    for place, folders, names in os.walk(folder):
        folders[:] = [name for name in folders if name not in LEFT_OUT]
        found |= {os.path.normpath(os.path.join(place, name)) for name in names if name.endswith(tuple(endings))}
    return found
