// Plucks the strings of chord diagrams: a pointer that crosses a string, or touches one, sets it
// swinging. The program puts the constant `pluck` before this text: the spring's mass and damping,
// its stiffness for strings 1 to 6, the displacement in design units, the distance of two strings
// in the same units, and the colour of a swinging string.
(() => {
  const still = matchMedia('(prefers-reduced-motion: reduce)');
  const secondsOfSwing = 2.5;  // by then a string swings less than a hundredth of its way
  const swinging = new Map();

  // Each line is one cubic curve: M x y C x y x y x y.
  const diagrams = new Map();
  for (const path of document.querySelectorAll('[class^="string-"] > path')) {
    const string = {
      path,
      number: Number(path.parentNode.getAttribute('class').slice('string-'.length)),
      rest: path.getAttribute('d'),
    };
    [string.x, string.top, , , , , , string.bottom] = string.rest.match(/-?[\d.]+/g).map(Number);
    const diagram = path.parentNode.parentNode;
    diagrams.set(diagram, [...(diagrams.get(diagram) ?? []), string]);
  }
  for (const strings of diagrams.values()) {
    const scale = Math.abs(strings[1].x - strings[0].x) / pluck.pitch;
    for (const string of strings) string.reach = pluck.displacement * scale;
  }

  // The displacement of a string that was released from 1.
  const swing = (string, seconds) => {
    const decay = pluck.damping / (2 * pluck.mass);
    const stiffness = pluck.stiffness[string.number - 1];
    const frequency = Math.sqrt(stiffness / pluck.mass - decay * decay);
    const turn = frequency * seconds;
    return Math.exp(-decay * seconds) * (Math.cos(turn) + decay / frequency * Math.sin(turn));
  };

  // Bowed towards the point at which it was touched: 0 the top, 1 the bottom.
  const bow = ({x, top, bottom}, displacement, touch) => {
    const height = bottom - top;
    const touched = touch * height;
    const side = x + displacement;
    return `M${x} ${top}C${side} ${top + touched / 2} ` +
        `${side} ${top + height - (height - touched) / 2} ${x} ${bottom}`;
  };

  const drawFrame = now => {
    for (const [string, pluckOfString] of swinging) {
      // A swing begins with the first frame that shows it, however busy the machine is.
      pluckOfString.start ??= now;
      const {start, side, touch} = pluckOfString;
      const seconds = (now - start) / 1000;
      if (seconds > secondsOfSwing) {
        swinging.delete(string);
        string.path.setAttribute('d', string.rest);
        string.path.style.stroke = '';
      } else if (!still.matches) {
        const displacement = side * string.reach * swing(string, seconds);
        string.path.setAttribute('d', bow(string, displacement, touch));
      }
    }
    if (swinging.size > 0) requestAnimationFrame(drawFrame);
  };

  const pluckString = (string, side, y) => {
    if (swinging.size === 0) requestAnimationFrame(drawFrame);
    const touch = (y - string.top) / (string.bottom - string.top);
    swinging.set(string, {start: null, side, touch});
    string.path.style.stroke = pluck.colour;
  };

  const isBeside = (string, y) => y > string.top && y < string.bottom;

  for (const [diagram, strings] of diagrams) {
    const picture = diagram.closest('svg');
    const half = Math.abs(strings[1].x - strings[0].x) / 2;
    let last = null;
    const placeOf = event => new DOMPoint(event.clientX, event.clientY)
        .matrixTransform(picture.getScreenCTM().inverse());
    picture.addEventListener('pointermove', event => {
      const {x, y} = placeOf(event);
      for (const string of strings) {
        const isCrossed = last !== null && (last < string.x) !== (x < string.x);
        if (isCrossed && isBeside(string, y)) pluckString(string, Math.sign(x - last), y);
      }
      last = x;
    });
    picture.addEventListener('pointerleave', () => { last = null; });
    picture.addEventListener('pointerdown', event => {
      const {x, y} = placeOf(event);
      for (const string of strings) {
        if (Math.abs(x - string.x) < half && isBeside(string, y)) pluckString(string, 1, y);
      }
    });
  }
})();
