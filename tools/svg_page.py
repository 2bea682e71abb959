"""What the documents' drawings have in common: a page that follows the reader's light or dark scheme, with a title and
a description for those who cannot see it."""
from xml.sax.saxutils import escape

FONT = "Inter, 'Segoe UI', 'Helvetica Neue', Arial, sans-serif"


def svg_page(width, height, title, description, style, dark, shapes):
    """`style` and `dark` are style sheets; the second adds to the first. Text and shapes have no colours of their own."""
    return "\n".join([
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width:g}" height="{height:g}" '
        f'viewBox="0 0 {width:g} {height:g}" role="img" font-family="{FONT}" aria-labelledby="title description">',
        f'<title id="title">{escape(title)}</title>',
        f'<desc id="description">{escape(description)}</desc>',
        f"<style>{style}@media (prefers-color-scheme: dark) {{{dark}}}</style>",
        f'<rect width="{width:g}" height="{height:g}" rx="10" class="paper"/>',
        *shapes, "</svg>", ""])
