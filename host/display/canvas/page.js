// The page's part of the display: a canvas, and what a person does before it. A library for emcc.
mergeInto(LibraryManager.library, {
  $gpiPage: {
    canvas: null,
    context: null,
    listening: null, // an AbortController: ends all listeners
    // What was put on the canvas so far.
    count: { frames: 0, areas: 0, pixels: 0 },

    // The pixel of the canvas under a pointer, however large the page shows it.
    pixelAt: (event) => {
      const shown = gpiPage.canvas.getBoundingClientRect();
      return [
        Math.floor((event.clientX - shown.left) * gpiPage.canvas.width / shown.width),
        Math.floor((event.clientY - shown.top) * gpiPage.canvas.height / shown.height),
      ];
    },

    listen: (backEnd) => {
      gpiPage.listening = new AbortController();
      const signal = gpiPage.listening.signal;
      const on = (target, types, handle) =>
        types.forEach((type) => target.addEventListener(type, handle, { signal }));

      on(window, ['keydown', 'keyup'], (event) => {
        const known = ccall('gpiCanvasKey', 'number', ['number', 'string', 'string', 'number'],
          [backEnd, event.code, event.key, event.type === 'keydown']);
        // Combinations with these keys are the browser's.
        if (known && !event.ctrlKey && !event.altKey && !event.metaKey) {
          event.preventDefault();
        }
      });
      on(gpiPage.canvas, ['pointerdown', 'pointermove', 'pointerup', 'pointercancel'], (event) => {
        if (!event.isPrimary) {
          return; // a second finger
        }
        if (event.type === 'pointerdown') {
          gpiPage.canvas.setPointerCapture(event.pointerId);
        }
        const [x, y] = gpiPage.pixelAt(event);
        _gpiCanvasPointer(backEnd, x, y, event.type === 'pointercancel' ? 0 : event.buttons);
      });
      on(gpiPage.canvas, ['contextmenu'], (event) => event.preventDefault());
      on(window, ['blur', 'pagehide'], () => _gpiCanvasLeave(backEnd));
    },
  },

  gpiPageOpen__deps: ['$gpiPage'],
  gpiPageOpen__proxy: 'sync',
  gpiPageOpen__sig: 'viii',
  gpiPageOpen: function (backEnd, width, height) {
    const canvas = Module['canvas'];
    canvas.width = width;
    canvas.height = height;
    canvas.style.touchAction = 'none'; // fingers are pointers, and move no page
    gpiPage.canvas = canvas;
    gpiPage.context = canvas.getContext('2d', { alpha: false });
    Module['count'] = gpiPage.count;
    gpiPage.listen(backEnd);
    canvas.dispatchEvent(new Event('resize', { bubbles: true }));
  },

  gpiPageClose__deps: ['$gpiPage'],
  gpiPageClose__proxy: 'sync',
  gpiPageClose__sig: 'v',
  gpiPageClose: function () {
    gpiPage.listening.abort();
  },

  gpiPageSettle__deps: ['$gpiPage'],
  gpiPageSettle__proxy: 'sync',
  gpiPageSettle__sig: 'vi',
  gpiPageSettle: function (backEnd) {
    _gpiCanvasPut(backEnd);
  },

  gpiPageAsk__deps: ['$gpiPage'],
  gpiPageAsk__proxy: 'async',
  gpiPageAsk__sig: 'vi',
  gpiPageAsk: function (backEnd) {
    _gpiCanvasPut(backEnd);
    gpiPage.count.frames += 1;
  },

  gpiPagePut__deps: ['$gpiPage'],
  gpiPagePut__sig: 'viiiii',
  gpiPagePut: function (pixels, left, top, width, height) {
    const image = new ImageData(width, height);
    image.data.set(HEAPU8.subarray(pixels, pixels + image.data.length));
    gpiPage.context.putImageData(image, left, top);
    gpiPage.count.areas += 1;
    gpiPage.count.pixels += width * height;
  },
});
