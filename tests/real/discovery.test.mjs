import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';
import { describeWith } from './counterparts.mjs';
import { serviceUrl, startNetwork } from './network.mjs';
import { end, output, pause, programs, start } from './processes.mjs';

const credential = ['ann', 'a password'];

await describeWith(['nginx -v', 'dnsmasq --version', 'openssl version'], () => {
  let network;
  before(async () => (network = await startNetwork()));
  after(() => network?.stop());

  async function discover(domain, ...options) {
    const text = await output(`${programs}/../tests/discover`, [`ann@${domain}`, ...credential, ...options]);
    const lines = text.trim().split('\n').map((line) => JSON.parse(line));
    const result = lines.find((line) => line.notified === 15)?.content ?? {};
    return {
      asked: lines.filter((line) => line.asked).map((line) => line.asked),
      address: result.QRT_ExchangeDiscover_Exchange?.kKZCalendarIntegrationExchangeExternalUrl,
      message: result.kKZErrorHandleData?.kKZErrorMessage,
      longestPause: lines.find((line) => 'longestPauseMs' in line).longestPauseMs,
    };
  }

  async function authorizationsOf(host) {
    const visits = (await network.visits()).filter((visit) => visit.startsWith(`${host} `));
    return visits.map((visit) => visit.match(/"(.*)"$/)[1].split(' ')[0]);
  }

  test('Negotiate, NTLM and Basic are offered: only Basic is answered', async () => {
    const { address, longestPause } = await discover('basic.test');
    assert.equal(address, serviceUrl('basic.test'));
    assert.deepEqual(await authorizationsOf('autodiscover.basic.test'), ['-', 'Basic']);
    const reverse = (await network.names()).filter((name) => name.endsWith('.arpa'));
    assert.deepEqual(reverse, []);
    assert.ok(longestPause < 500, `${longestPause} ms`);
  });

  test('a service record leads to another port', async () => {
    const { address, asked } = await discover('record.test');
    assert.equal(address, serviceUrl('record.test'));
    assert.deepEqual(asked, []);
  });

  test('http leads to https elsewhere: allowed', async () => {
    const { address, asked } = await discover('hosted.test', '--allow');
    assert.deepEqual(asked[0], 'autodiscover.elsewhere.test');
    assert.equal(address, serviceUrl('elsewhere.test'));
  });

  for (const [domain, what, message] of [
    ['hosted.test', 'http leads to https elsewhere: declined', /did not allow autodiscover\.elsewhere\.test/],
    ['expired.test', 'an expired certificate', /certificate of autodiscover\.expired\.test .*expired/],
    ['other.test', 'a certificate for another name', /certificate of autodiscover\.other\.test .*another name/],
    ['untrusted.test', 'an unknown authority', /certificate of autodiscover\.untrusted\.test .*not trusted/],
    ['nowhere.test', 'a domain without Exchange', /nowhere\.test was not found/],
  ]) {
    test(`${what}: told so`, async () => {
      const { message: told, longestPause } = await discover(domain);
      assert.match(told, message);
      assert.ok(longestPause < 500, `${longestPause} ms`);
    });
  }

  test('the companion with --network asks for no name at its start', async () => {
    const before = (await network.names()).length;
    const companion = start(`${programs}/companion`, ['--network', '--state', `${process.cwd()}/companion-state`]);
    await pause(3000);
    await end(companion, 'SIGTERM');
    assert.deepEqual((await network.names()).slice(before), []);
  });
});
