"""What goes wrong."""


class Error(Exception):
    """Something that the library or its platform refused, and what to do about it."""
