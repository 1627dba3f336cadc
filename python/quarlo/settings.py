"""Settings of the platform for Linux, as keywords: width=320 is QUARLO_WIDTH=320."""
import contextlib
import os

NAMES = frozenset({
    "chinese_font", "code_page", "data_server", "display", "files", "format", "glyph_cache",
    "height", "japanese_font", "memory_limit", "modules", "nc", "nc_helper", "net_ca_file",
    "net_connect_timeout", "net_idle_timeout", "net_proxy", "net_redirects", "panel_font", "png",
    "profiles", "programs", "scale", "screen", "screen_input", "title", "user_profiles",
    "vnc_address", "vnc_password", "vnc_port", "vnc_view_only", "whole_strings", "width",
})


@contextlib.contextmanager
def applied(settings):
    """Lets the platform find settings while it starts."""
    unknown = sorted(settings.keys() - NAMES)
    if unknown:
        raise TypeError(f"no setting: {', '.join(unknown)}; there are {', '.join(sorted(NAMES))}")
    variables = {f"QUARLO_{name.upper()}": str(value) for name, value in settings.items()}
    before = {name: os.environ.get(name) for name in variables}
    os.environ.update(variables)
    try:
        yield
    finally:
        for name, value in before.items():
            if value is None:
                del os.environ[name]
            else:
                os.environ[name] = value
