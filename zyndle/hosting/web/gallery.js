// Shows which link a tap follows, for machines on which no app takes it, and the time of day.
(() => {
  const notice = document.getElementById('link');
  document.addEventListener('click', event => {
    const link = event.target.closest('a[href^="zyndle:"]');
    if (link !== null) notice.textContent = notice.dataset.text.replace('{}', link.getAttribute('href'));
  });

  const clock = document.querySelector('.clock');
  const showTime = () => {
    const time = new Date().toLocaleTimeString([], {hour: '2-digit', minute: '2-digit'});
    if (clock.textContent !== time) clock.textContent = time;
  };
  showTime();
  setInterval(showTime, 1000);
})();
