// Before the page's own scripts: sees to what the panel starts with, and looks at the canvas.
// `held` is the time of day at which the panel's time stands still, or null; `files` are texts.
const probe = window.probe = {
  shots: {}, // digests of the canvas when the panel wrote a picture of its display, by name
  puts: [], // what was put on the canvas: left, top, width, height

  pixels: (area) => {
    const canvas = document.getElementById('canvas');
    const [left, top, width, height] = area || [0, 0, canvas.width, canvas.height];
    return canvas.getContext('2d').getImageData(left, top, width, height).data;
  },

  rgb: (area) => {
    const pixels = probe.pixels(area);
    const bytes = new Uint8Array(pixels.length / 4 * 3);
    for (let from = 0, to = 0; from < pixels.length; from += 4, to += 3) {
      bytes[to] = pixels[from];
      bytes[to + 1] = pixels[from + 1];
      bytes[to + 2] = pixels[from + 2];
    }
    return bytes;
  },

  digest: async (area) => {
    const canvas = document.getElementById('canvas');
    if (canvas.width === 0) {
      return 'no picture';
    }
    const hash = await crypto.subtle.digest('SHA-256', probe.rgb(area));
    return [...new Uint8Array(hash)].map((byte) => byte.toString(16).padStart(2, '0')).join('');
  },

  // Whether anything but black is on the canvas.
  drawn: () => document.getElementById('canvas').width > 0 &&
    probe.rgb().some((level) => level > 0),

  step: (milliseconds, step) => {
    for (let passed = 0; passed < milliseconds; passed += step) {
      Module._GPIHostStepClock(Math.min(step, milliseconds - passed));
    }
  },

  place: (x, y) => {
    const canvas = document.getElementById('canvas');
    const shown = canvas.getBoundingClientRect();
    return [
      Math.floor(shown.left + (x + 0.5) * shown.width / canvas.width),
      Math.floor(shown.top + (y + 0.5) * shown.height / canvas.height),
    ];
  },

  // Frames of the browser and of the panel a second, while it does whatever it does.
  rates: (milliseconds) => new Promise((done) => {
    const begin = performance.now();
    const before = { ...Module.count };
    let frames = 0;
    const next = (now) => {
      const passed = (now - begin) / 1000;
      if (passed * 1000 < milliseconds) {
        frames += 1;
        requestAnimationFrame(next);
        return;
      }
      done({
        browser: frames / passed,
        panel: (Module.count.frames - before.frames) / passed,
        pixels: (Module.count.pixels - before.pixels) / (Module.count.frames - before.frames),
      });
    };
    requestAnimationFrame(next);
  }),
};

const prepare = (module) => {
  module.preRun.push(() => {
    const { FS } = module;
    for (const [path, text] of Object.entries(files)) {
      FS.writeFile(path, text);
    }
    FS.mkdir('/shots');
    // A picture is written to another file first; all that was drawn before is on the canvas.
    const rename = FS.rename;
    FS.rename = (from, to) => {
      rename(from, to);
      if (to.startsWith('/shots/')) {
        probe.shots[to.slice('/shots/'.length)] = probe.digest();
      }
    };
  });
  const initialized = module.onRuntimeInitialized;
  module.onRuntimeInitialized = () => {
    initialized();
    if (held !== null) {
      module._GPIHostHoldClock(held);
    }
  };
};

const put = CanvasRenderingContext2D.prototype.putImageData;
CanvasRenderingContext2D.prototype.putImageData = function (image, left, top) {
  probe.puts.push([left, top, image.width, image.height]);
  put.call(this, image, left, top);
};

let theModule;
Object.defineProperty(window, 'Module', {
  get: () => theModule,
  set: (module) => {
    if (theModule === undefined && module !== undefined) {
      prepare(module);
    }
    theModule = module;
  },
});
